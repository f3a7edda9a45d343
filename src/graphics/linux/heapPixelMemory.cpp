// Pixel memory of the process's own.
#include "graphics/linux/heapPixelMemory.h"

#include <algorithm>

HeapPixelMemory::HeapPixelMemory(int width, int height)
    : m_width(std::max(width, 0)),
      m_height(std::max(height, 0)),
      m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height), 0xff000000U) {}
