// The program's icon: a crescent with a star over a night sky.
#pragma once

#include "rgbaPicture.h"

// The icon at a size in pixels, 16 or more, with transparent corners. Small sizes leave details out and draw
// the rest larger.
RgbaPicture drawIcon(int size);
