// The tests' window on Linux: memory.
#include "graphics/linux/memoryWindow.h"
#include "windowharness/testWindow.h"

struct TestWindow::Native {
  MemoryWindow window;
};

TestWindow::TestWindow(int width, int height, int left, int top)
    : m_native(std::make_unique<Native>(
          Native{MemoryWindow({left, top, left + width, top + height},
                              std::vector<xplEdges>{{left, top, left + width, top + height}})})) {}

TestWindow::~TestWindow() = default;

xplWindowHandle TestWindow::handle() {
  return &m_native->window;
}

xplColor TestWindow::shownPixel(int x, int y) {
  return m_native->window.shown().getPixel(x, y);
}
