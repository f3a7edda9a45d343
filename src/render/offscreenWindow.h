// A native window that nobody sees, for the renderer; each platform supplies it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "graphics/window.h"

class OffscreenWindow {
 public:
  // Sizes in pixels, at least 1. Throws std::runtime_error where the platform refuses it.
  OffscreenWindow(int width, int height);
  ~OffscreenWindow();
  OffscreenWindow(const OffscreenWindow&) = delete;
  OffscreenWindow& operator=(const OffscreenWindow&) = delete;

  // Valid as long as this object.
  xplWindowHandle handle();
  // The flushed frame of a window made on the handle, row by row from the top: 0xffRRGGBB for each pixel.
  void readFrame(xplWindow& window, std::vector<std::uint32_t>& pixels);

 private:
  struct Native;
  std::unique_ptr<Native> m_native;
};

// Whether standard error is a terminal that a person reads.
bool standardErrorIsTerminal();
// Makes standard output carry bytes as they are.
void makeStandardOutputBinary();
// The files of the process are apart from other processes' by this number.
unsigned long processNumber();
