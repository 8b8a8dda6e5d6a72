// Colours: the colour word, mixing, and the hue-saturation-intensity model of the colour gadgets.
// All channels are floats from 0 to 255; hue 0..255 stands for 0..360 degrees.
#include <cmath>

#include "brushel_internal.h"

#define HUE_SCALE (255.0f / 360.0f)  // degrees to the hue channel
#define PI_F 3.14159265358979f

static u32 ChannelByte(float value)
{
    if (!(value > 0.0f))
        return 0;  // negative and NaN
    if (value >= 255.0f)
        return 255;
    return (u32)std::floor(value + 0.5f);
}

u32 GetConstantTRGBA(T_RGBA *rgba)
{
    return ChannelByte(rgba->r) | ChannelByte(rgba->g) << 8 | ChannelByte(rgba->b) << 16;
}

u32 MixColour(u32 a, u32 b, u8 amount_of_b)
{
    return BlendPixel(a & 0x00FFFFFF, b & 0x00FFFFFF, amount_of_b);
}

// Intensity is the mean of the channels, saturation 1 - min / intensity, and hue the angle of the
// colour around the grey axis (atan2 of the classic arccos formula, stable near the axes).
void RGBToHSI(T_RGBA *rgba, T_HSIA *hsia)
{
    float r = rgba->r, g = rgba->g, b = rgba->b;
    float intensity = (r + g + b) / 3.0f;
    float low = std::fmin(r, std::fmin(g, b));
    float saturation = intensity > 0.0f ? 1.0f - low / intensity : 0.0f;
    float hue = 0.0f;
    if (saturation > 0.0f) {
        hue = std::atan2(0.8660254f * (g - b), r - 0.5f * (g + b)) * (180.0f / PI_F);
        if (hue < 0.0f)
            hue += 360.0f;
    }
    hsia->h = hue * HUE_SCALE;
    hsia->s = saturation * 255.0f;
    hsia->i = intensity;
    hsia->a = rgba->a;
}

// The inverse by sector of 120 degrees; what falls outside the RGB cube is clamped into it.
void HSIToRGB(T_HSIA *hsia, T_RGBA *rgba)
{
    float hue = std::fmod(hsia->h / HUE_SCALE, 360.0f);
    if (hue < 0.0f)
        hue += 360.0f;
    float s = hsia->s / 255.0f, i = hsia->i;
    int sector = (int)(hue / 120.0f) % 3;
    float angle = (hue - 120.0f * sector) * (PI_F / 180.0f);
    float low = i * (1.0f - s);
    float high = i * (1.0f + s * std::cos(angle) / std::cos(PI_F / 3.0f - angle));
    float rest = 3.0f * i - (low + high);
    float channels[3];  // the sector's first, second and third channel: high, rest, low
    channels[sector] = high;
    channels[(sector + 1) % 3] = rest;
    channels[(sector + 2) % 3] = low;
    rgba->r = std::fmin(255.0f, std::fmax(0.0f, channels[0]));
    rgba->g = std::fmin(255.0f, std::fmax(0.0f, channels[1]));
    rgba->b = std::fmin(255.0f, std::fmax(0.0f, channels[2]));
    rgba->a = hsia->a;
}
