// The image's part that is the same on every platform, and the list of its operations.
#pragma once

#include <optional>
#include <string>

#include "graphics/color.h"
#include "graphics/textAttributes.h"

class xplWindow;

// Failures are logged; the image then stays as it was.
class xplImageBase {
 public:
  xplImageBase() = default;
  xplImageBase(const xplImageBase&) = delete;
  xplImageBase& operator=(const xplImageBase&) = delete;

  virtual ~xplImageBase() = default;
  // Pixels of exactly this colour are not drawn from now on.
  virtual void setTransparentColor(xplColor color) { m_transparentColor = color; }
  virtual void initWithSizeAndColor(int width, int height, xplColor color) = 0;
  // Loads a bitmap file; false (and an error entry) on failure. logSuccess: also an entry when it worked.
  virtual bool initWithFile(const std::string& filename, bool logSuccess) = 0;
  // Loads the program's own bitmap with this id; false (and an error entry) on failure.
  virtual bool initWithResource(int id) = 0;
  virtual xplColor getPixel(int x, int y) = 0;  // (255,228,181,255) outside the image
  virtual void setPixel(int x, int y, xplColor color) = 0;
  virtual void amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) = 0;
  virtual int getWidth() = 0;   // pixels; 0 without a bitmap
  virtual int getHeight() = 0;  // pixels; 0 without a bitmap
  virtual void drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) = 0;
  // Draws the whole image with its top left at (x, y) on the window's current target, without scaling.
  virtual void drawOnWindow(xplWindow& window, int x, int y) = 0;
  // resizeTo of the size times the factor, truncated.
  virtual void scaleBy(float factor);
  // Drops or repeats pixels; nothing when the size is the same already.
  virtual void resizeTo(int width, int height) = 0;
  virtual void crop(int x, int y, int width, int height) = 0;
  virtual void crop_impl(int x, int y, int width, int height) = 0;
  virtual void resizeTo_impl(int width, int height) = 0;
  virtual bool initWithFile_impl(const std::string& filename) = 0;

 protected:
  // Whether a picture may have this size (pixels): at least 1 x 1, and no more than a display can show.
  static bool isAllowedSize(int width, int height);
  // Writes the error entry of an operation that got no bitmap.
  static void reportNoBitmap(const char* operation, int width, int height);

  std::optional<xplColor> m_transparentColor;
};
