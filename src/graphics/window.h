// The one drawing surface of the saver, with its back buffer and text attribute stacks.
#pragma once

#include <string>

#include "graphics/platform.h"

// Made on a native window, whose rectangle is read once. The native window is borrowed and must outlive it.
// A null handle gives a window without size on which nothing is drawn.
class xplWindow : public xplWindowPlatform {
 public:
  using xplWindowPlatform::xplWindowPlatform;

  void clear() override;
  void drawText(int x, int y, const std::string& text, const xplTextAttributes* attributes) override;
  void pushTextAttributes(const xplTextAttributes* attributes) override;
  void popTextAttributes(const xplTextAttributes* attributes) override;
  xplColor getPixel(int x, int y) override;
  void setPixel(int x, int y, xplColor color) override;
};
