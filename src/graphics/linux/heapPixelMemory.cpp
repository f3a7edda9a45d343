// Pixel memory of the process's own.
#include "graphics/linux/heapPixelMemory.h"

#include <algorithm>
#include <new>

namespace {

// Sizes that no memory could hold fail like those that this machine's memory cannot.
std::size_t pixelCount(int width, int height, std::size_t limit) {
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return count <= limit ? count : throw std::bad_alloc();
}

}  // namespace

HeapPixelMemory::HeapPixelMemory(int width, int height)
    : m_width(std::max(width, 0)),
      m_height(std::max(height, 0)),
      m_pixels(pixelCount(m_width, m_height, m_pixels.max_size()), 0xff000000U) {}
