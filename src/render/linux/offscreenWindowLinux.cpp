// The renderer's window on Linux: memory.
#include <unistd.h>

#include "graphics/linux/memoryWindow.h"
#include "render/offscreenWindow.h"

struct OffscreenWindow::Native {
  MemoryWindow window;
};

OffscreenWindow::OffscreenWindow(int width, int height)
    : m_native(std::make_unique<Native>(
          Native{MemoryWindow({0, 0, width, height}, std::vector<xplEdges>{{0, 0, width, height}})})) {}

OffscreenWindow::~OffscreenWindow() = default;

xplWindowHandle OffscreenWindow::handle() {
  return &m_native->window;
}

void OffscreenWindow::readFrame(xplWindow&, std::vector<std::uint32_t>& pixels) {
  m_native->window.shown().copyTo(pixels);
}

bool standardErrorIsTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

void makeStandardOutputBinary() {}

unsigned long processNumber() {
  return static_cast<unsigned long>(getpid());
}
