// A picture in memory: pixels, fills and blits.
#include "graphics/linux/surface.h"

#include <algorithm>
#include <utility>

#include "graphics/linux/heapPixelMemory.h"
#include "graphics/linux/pixelWord.h"

Surface::Surface(int width, int height) : Surface(std::make_unique<HeapPixelMemory>(width, height)) {}

Surface::Surface(std::unique_ptr<PixelMemory> memory)
    : m_memory(std::move(memory)), m_width(m_memory->width()), m_height(m_memory->height()) {}

xplColor Surface::getPixel(int x, int y) const {
  if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
    return {255, 255, 255};
  }
  return colorOfWord(row(y)[x]);
}

void Surface::setPixel(int x, int y, xplColor color) {
  if (x >= 0 && y >= 0 && x < m_width && y < m_height) {
    row(y)[x] = wordOfColor(color);
  }
}

xplEdges Surface::clipped(const xplEdges& edges) const {
  return {std::max(edges.left, 0), std::max(edges.top, 0), std::min(edges.right, m_width),
          std::min(edges.bottom, m_height)};
}

void Surface::fillRow(int y, int left, int right, std::uint32_t word) {
  left = std::max(left, 0);
  right = std::min(right, m_width);
  if (y >= 0 && y < m_height && left < right) {
    std::fill(row(y) + left, row(y) + right, word);
  }
}

void Surface::fillRect(const xplEdges& edges, xplColor color) {
  const xplEdges part = clipped(edges);
  const std::uint32_t word = wordOfColor(color);
  for (int y = part.top; y < part.bottom; ++y) {
    fillRow(y, part.left, part.right, word);
  }
}

void Surface::blit(int x, int y, const Surface& source, int sourceX, int sourceY, int width, int height,
                   std::optional<xplColor> transparentColor) {
  // 64 bits hold any sum of two ints; the part is clipped to both surfaces in the source's coordinates.
  using Wide = std::int64_t;
  const Wide shiftX = Wide{x} - sourceX;
  const Wide shiftY = Wide{y} - sourceY;
  const Wide left = std::max({Wide{sourceX}, Wide{0}, -shiftX});
  const Wide top = std::max({Wide{sourceY}, Wide{0}, -shiftY});
  const Wide right = std::min({Wide{sourceX} + width, Wide{source.m_width}, m_width - shiftX});
  const Wide bottom = std::min({Wide{sourceY} + height, Wide{source.m_height}, m_height - shiftY});
  if (right <= left) {
    return;
  }
  for (Wide sourceRow = top; sourceRow < bottom; ++sourceRow) {
    const std::uint32_t* from = source.row(static_cast<int>(sourceRow)) + left;
    std::uint32_t* to = row(static_cast<int>(sourceRow + shiftY)) + (left + shiftX);
    if (!transparentColor) {
      std::copy_n(from, right - left, to);
      continue;
    }
    const std::uint32_t transparent = wordOfColor(*transparentColor);
    for (Wide column = 0; column < right - left; ++column) {
      to[column] = from[column] == transparent ? to[column] : from[column];
    }
  }
}

void Surface::copyTo(std::vector<std::uint32_t>& pixels) const {
  pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height));
  for (int y = 0; y < m_height; ++y) {
    std::copy_n(row(y), m_width, pixels.begin() + std::ptrdiff_t{y} * m_width);
  }
}
