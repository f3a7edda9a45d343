// How a text is drawn: the optional attributes that a caller gives, and the full description that tools get.
#pragma once

#include <optional>
#include <string>

#include "graphics/color.h"

// Attributes for one drawText, or to push on the window's stacks. A field without a value leaves its stack
// alone.
struct xplTextAttributes {
  // Any value but these two means left.
  static constexpr int alignmentLeft = 1;
  static constexpr int alignmentRight = 2;
  static constexpr int alignmentCentered = 3;

  std::optional<xplColor> color;
  std::optional<std::string> fontName;
  std::optional<int> fontSize;   // points
  std::optional<int> alignment;  // see the constants above
};

// What the window hands to the drawing tools for one text.
struct xplTextDrawingInfo {
  static constexpr int alignCentered = 0;
  static constexpr int alignRight = 1;
  static constexpr int alignLeft = -1;

  std::optional<xplColor> color;          // absent: the target's present text colour
  std::optional<std::string> fontName;    // absent: "Arial"
  std::optional<int> fontSize;            // points; absent: 10
  std::optional<int> alignment;           // 0 centred, 1 right, else (and absent) left
  std::optional<float> characterSpacing;  // extra pixels between characters, truncated to whole ones
  int nonAntialiased = 0;                 // exactly 1: without antialiasing
  int thin = 0;                           // exactly 1: weight 100, else 400
};
