// A native window in memory.
#include "graphics/linux/memoryWindow.h"

#include <algorithm>
#include <utility>

#include "graphics/linux/heapPixelMemory.h"

namespace {

// Copies a part, clipped to both, in one go where the rows follow each other.
void copyPart(PixelMemory& from, PixelMemory& to, xplEdges part) {
  part.left = std::max(part.left, 0);
  part.top = std::max(part.top, 0);
  part.right = std::min({part.right, from.width(), to.width()});
  part.bottom = std::min({part.bottom, from.height(), to.height()});
  if (part.right <= part.left || part.bottom <= part.top) {
    return;
  }
  const auto width = static_cast<std::size_t>(part.right - part.left);
  const auto rows = static_cast<std::size_t>(part.bottom - part.top);
  const std::uint32_t* source = from.pixels() + static_cast<std::size_t>(part.top) * from.stride() +
                                static_cast<std::size_t>(part.left);
  std::uint32_t* target =
      to.pixels() + static_cast<std::size_t>(part.top) * to.stride() + static_cast<std::size_t>(part.left);
  if (width == from.stride() && width == to.stride()) {
    std::copy_n(source, width * rows, target);
    return;
  }
  for (std::size_t row = 0; row < rows; ++row) {
    std::copy_n(source + row * from.stride(), width, target + row * to.stride());
  }
}

}  // namespace

MemoryWindow::MemoryWindow(const xplEdges& rectangle, std::vector<xplEdges> monitors)
    : m_rectangle(rectangle),
      m_monitors(std::move(monitors)),
      m_shown(rectangle.right - rectangle.left, rectangle.bottom - rectangle.top) {
  m_shown.fillRect({0, 0, m_shown.width(), m_shown.height()}, xplColor(0, 0, 0));
}

std::unique_ptr<PixelMemory> MemoryWindow::makePixelMemory(int width, int height) {
  return std::make_unique<HeapPixelMemory>(width, height);
}

void MemoryWindow::copyContent(PixelMemory& memory) {
  copyPart(m_shown.memory(), memory, {0, 0, m_shown.width(), m_shown.height()});
}

void MemoryWindow::present(PixelMemory& memory, std::span<const xplEdges> parts) {
  for (const xplEdges& part : parts) {
    copyPart(memory, m_shown.memory(), part);
  }
}
