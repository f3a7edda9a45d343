// The drawing operations that a platform supplies, on whatever target the implementation refers to.
#pragma once

#include <optional>
#include <string>

#include "graphics/color.h"
#include "graphics/textAttributes.h"

// The platform's drawing target that goes with its rectangle type; each platform specialises it (member
// `type`).
template <class RECT>
struct xplDeviceContextOf;

// RECT is the platform's rectangle (left, top, right, bottom; right and bottom exclusive). Coordinates are
// pixels. Nothing is ever deleted through this class. Drawing outside the target is clipped. Without a target
// getPixel gives opaque red and the rest does nothing.
template <class RECT>
class xpliDrawingTools {
 public:
  using DeviceContext = typename xplDeviceContextOf<RECT>::type;

  // The ellipse inside (left, top, right, bottom), filled with the colour and outlined by the target's pen.
  virtual void fillEllipse(int left, int top, int right, int bottom, xplColor color) = 0;
  virtual void fillRect(const RECT& rectangle, xplColor color) = 0;
  // The text's top is at y; x is its left edge, centre or right edge as the alignment says.
  virtual void drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) = 0;
  // Either of width and height (pixels) may be null.
  virtual void getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width,
                           int* height) = 0;
  virtual xplColor getPixel(int x, int y) = 0;
  virtual void setPixel(int x, int y, xplColor color) = 0;
  // From (x1, y1) up to but not including (x2, y2).
  virtual void drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) = 0;
  // Multiplies the pixel's channels; each product is truncated, at least 255 becomes 255, else its low 8 bits
  // stay.
  virtual void amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) = 0;
  // Copies width x height pixels from the source's (0, 0) to (x, y), except those of exactly the transparent
  // colour.
  virtual void drawImage(int x, int y, const DeviceContext& source, int width, int height,
                         std::optional<xplColor> transparentColor) = 0;

 protected:
  ~xpliDrawingTools() = default;
};
