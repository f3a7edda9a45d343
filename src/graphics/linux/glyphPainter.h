// Paints a rendered glyph on a surface.
#pragma once

#include "graphics/color.h"
#include "graphics/linux/fontFace.h"
#include "graphics/linux/surface.h"

// (penX, baselineY) is the pen's place on the surface. What lies outside the surface is left out.
void paintGlyph(Surface& surface, int penX, int baselineY, const Glyph& glyph, xplColor color);
