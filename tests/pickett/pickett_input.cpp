// The Lumora suite's headless input helpers, built into this suite as well.
#include "lumora/lumora_input.cpp"
