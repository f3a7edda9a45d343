// A picture in memory: pixels, fills and blits.
#include "graphics/linux/surface.h"

#include <algorithm>
#include <array>
#include <cstring>
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
    touched(y, x, x + 1);
  }
}

void Surface::trackChanges() {
  m_changes = std::make_unique<TileChanges>(m_width, m_height);
}

xplEdges Surface::clipped(const xplEdges& edges) const {
  return {std::max(edges.left, 0), std::max(edges.top, 0), std::min(edges.right, m_width),
          std::min(edges.bottom, m_height)};
}

void Surface::fillRow(int y, int left, int right, std::uint32_t word) {
  left = std::max(left, 0);
  right = std::min(right, m_width);
  if (y < 0 || y >= m_height || left >= right) {
    return;
  }
  if (m_changes == nullptr) {
    std::fill(row(y) + left, row(y) + right, word);
    return;
  }
  std::array<std::uint32_t, TileChanges::tileWidth> piece;
  piece.fill(word);
  while (left < right) {
    const int count = std::min(right - left, TileChanges::tileWidth - left % TileChanges::tileWidth);
    copyToRow(y, left, piece.data(), count);
    left += count;
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
      copyToRow(static_cast<int>(sourceRow + shiftY), static_cast<int>(left + shiftX), from,
                static_cast<int>(right - left));
      continue;
    }
    touched(static_cast<int>(sourceRow + shiftY), static_cast<int>(left + shiftX),
            static_cast<int>(right + shiftX));
    const std::uint32_t transparent = wordOfColor(*transparentColor);
    for (Wide column = 0; column < right - left; ++column) {
      to[column] = from[column] == transparent ? to[column] : from[column];
    }
  }
}

// Most of what is drawn is there already from the frame before: to look is cheaper than to write, and leaves
// unmarked what stays the same.
void Surface::copyToRow(int y, int left, const std::uint32_t* from, int count) {
  std::uint32_t* const to = row(y) + left;
  if (m_changes == nullptr) {
    std::copy_n(from, count, to);
    return;
  }
  for (int done = 0; done < count;) {
    const int piece = std::min(count - done, TileChanges::tileWidth - (left + done) % TileChanges::tileWidth);
    const std::size_t bytes = static_cast<std::size_t>(piece) * sizeof(std::uint32_t);
    if (std::memcmp(to + done, from + done, bytes) != 0) {
      std::memcpy(to + done, from + done, bytes);
      m_changes->mark(y, left + done, left + done + piece);
    }
    done += piece;
  }
}

void Surface::copyTo(std::vector<std::uint32_t>& pixels) const {
  pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height));
  for (int y = 0; y < m_height; ++y) {
    std::copy_n(row(y), m_width, pixels.begin() + std::ptrdiff_t{y} * m_width);
  }
}
