// The two pictured backgrounds of the sky.
#pragma once

#include "indexedBitmap.h"

// From night at the zenith to a last blue above the horizon; to be stretched to a window by dropping or
// repeating pixels.
IndexedBitmap makeGradient();

// Faint stars on near-black blue; its edges join.
IndexedBitmap makeStarryTile();
