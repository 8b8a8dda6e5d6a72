// All of the toolkit's public headers.
#pragma once
#include "brushel.h"
#include "constants.h"
#include "knobkit.h"
#include "lumora.h"
#include "marshalry.h"
#include "ostrand.h"
#include "pickett.h"
#include "tenure.h"
#include "types.h"
