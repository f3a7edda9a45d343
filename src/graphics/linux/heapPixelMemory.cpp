// Pixel memory of the process's own.
#include "graphics/linux/heapPixelMemory.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <new>

#include <sys/mman.h>

namespace {

constexpr std::size_t cacheLine = 64;                   // bytes
constexpr std::size_t hugePage = std::size_t{2} << 20;  // bytes
constexpr std::uint32_t black = 0xff000000U;

// Sizes that no memory could hold fail like those that this machine's memory cannot.
std::size_t pixelCount(int width, int height) {
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return count <= std::numeric_limits<std::size_t>::max() / 8 ? count : throw std::bad_alloc();
}

// A star of seven rows lies on seven pages of a large picture, and there are thousands of stars: looking up
// its pages costs a good part of a frame, unless they are few and huge. Rows of the tiles in which a picture
// is worked on begin where cache lines do.
std::uint32_t* reserve(std::size_t count) {
  const std::size_t bytes = std::max(count * sizeof(std::uint32_t), cacheLine);
  void* memory = nullptr;
  if (::posix_memalign(&memory, bytes >= hugePage ? hugePage : cacheLine, bytes) != 0) {
    throw std::bad_alloc();
  }
  if (bytes >= hugePage) {
    // Where the system has none to give, small ones do.
    ::madvise(memory, bytes, MADV_HUGEPAGE);
  }
  return static_cast<std::uint32_t*>(memory);
}

}  // namespace

HeapPixelMemory::HeapPixelMemory(int width, int height)
    : m_width(std::max(width, 0)),
      m_height(std::max(height, 0)),
      m_pixels(reserve(pixelCount(m_width, m_height))) {
  std::fill_n(m_pixels.get(), pixelCount(m_width, m_height), black);
}

void HeapPixelMemory::Release::operator()(std::uint32_t* pixels) const {
  std::free(pixels);
}
