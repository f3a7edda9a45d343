// Paints a rendered glyph on a surface.
#pragma once

#include <cstdint>

#include "graphics/color.h"
#include "graphics/linux/fontFace.h"
#include "graphics/linux/surface.h"

// (penX, baselineY) is the pen's place on the surface. What lies outside the surface is left out.
void paintGlyph(Surface& surface, std::int64_t penX, std::int64_t baselineY, const Glyph& glyph,
                xplColor color);
