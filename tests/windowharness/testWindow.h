// A native window for tests that nobody sees; each platform supplies it.
#pragma once

#include <memory>

#include "graphics/window.h"

class TestWindow {
 public:
  // Size in pixels and place in screen coordinates. It starts black.
  TestWindow(int width, int height, int left = 0, int top = 0);
  ~TestWindow();
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;

  // Valid as long as this object.
  xplWindowHandle handle();
  // What a viewer sees at this place of the window.
  xplColor shownPixel(int x, int y);

 private:
  struct Native;
  std::unique_ptr<Native> m_native;
};
