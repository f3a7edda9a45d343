// The full moon in the sizes that the sky shows.
#pragma once

#include "moonMap.h"
#include "rgbaPicture.h"

// size: pixels of a side, even. The disc's middle is the middle of the pixel (size / 2, size / 2), about
// which the moon sprite shades; its rim touches the far sides of the last row and column, so the first row
// and column are empty. What is empty is exactly black, and nothing else is: blue stays above 15, so that
// shading, which leaves at least 0.3 of it, never makes a hole in the disc.
RgbaPicture drawMoon(const MoonMap& map, int size);
