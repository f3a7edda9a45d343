// Draws and measures text on a surface with the system's fonts.
#pragma once

#include <string>

#include "graphics/linux/surface.h"
#include "graphics/textAttributes.h"

// What one text is drawn with, after all defaults have been applied.
struct TextStyle {
  std::string fontName;
  // Em height in pixels. A negative one asks for lines of that many pixels, 0 for lines of 16, as GDI does.
  int characterHeight = 0;
  int characterSpacing = 0;  // extra pixels after each character
  bool antialiased = true;
  bool thin = false;
};

struct TextSize {
  int width = 0;   // pixels
  int height = 0;  // pixels
};

// The character height in pixels of a size in points: points x dots per inch / 72, rounded half away from
// zero.
int characterHeightOf(int points, int dotsPerInch);

// Lines are broken at "\n" and "\r\n"; a byte that is not UTF-8 counts as the replacement character. Without
// any usable font nothing is drawn, sizes are 0, and one error entry says so.
TextSize measureText(const std::string& text, const TextStyle& style);
// alignment: as in xplTextDrawingInfo. y is the top of the first line.
void drawTextOn(Surface& surface, int x, int y, const std::string& text, const TextStyle& style,
                xplColor color, int alignment);
