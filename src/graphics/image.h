// An off-screen picture: made empty, loaded, scaled, cropped, read and written by pixels, and drawn on the
// window.
#pragma once

#include <string>

#include "graphics/platform.h"

class xplImage : public xplImagePlatform {
 public:
  bool initWithFile(const std::string& filename, bool logSuccess) override;
  xplColor getPixel(int x, int y) override;
  void setPixel(int x, int y, xplColor color) override;
  void resizeTo(int width, int height) override;
  void crop(int x, int y, int width, int height) override;
};
