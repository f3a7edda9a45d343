// A picture in memory: pixels, fills and blits.
#include "graphics/linux/surface.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <utility>

#include "graphics/linux/heapPixelMemory.h"
#include "graphics/linux/pixelWord.h"

namespace {

std::uint64_t mixed(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x9e3779b97f4a7c15U;
  return hash ^ (hash >> 29);
}

// Numbers that stand for drawn content: equal ones mean equal pixels, and none is 0.
std::uint64_t contentOfFill(std::uint32_t word) {
  return mixed(1, word) | 1U;
}

std::uint64_t contentOfBlit(std::uint64_t sourceVersion, std::int64_t shiftX, std::int64_t shiftY) {
  const std::uint64_t hash = mixed(mixed(2, sourceVersion), static_cast<std::uint64_t>(shiftX));
  return (mixed(hash, static_cast<std::uint64_t>(shiftY)) & ~std::uint64_t{1}) | (std::uint64_t{1} << 63);
}

struct Range {
  int first = 0;
  int end = 0;  // exclusive
};

// Deliberate: edges in the wrong order do not make an empty range, they make one that runs backwards: from
// the first edge, inclusive, down to the second, exclusive. The platform fills so. Do not sort the edges
// either; that gives other pixels.
Range filledRange(int edge, int oppositeEdge) {
  if (oppositeEdge >= edge) {
    return {edge, oppositeEdge};
  }
  // Behind the last number there is nothing.
  return edge == std::numeric_limits<int>::max() ? Range{} : Range{oppositeEdge + 1, edge + 1};
}

}  // namespace

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

void Surface::fillRow(std::int64_t wideY, std::int64_t wideLeft, std::int64_t wideRight, std::uint32_t word) {
  wideLeft = std::max(wideLeft, std::int64_t{0});
  wideRight = std::min(wideRight, std::int64_t{m_width});
  if (wideY < 0 || wideY >= m_height || wideLeft >= wideRight) {
    return;
  }
  const int y = static_cast<int>(wideY);
  const int left = static_cast<int>(wideLeft);
  const int right = static_cast<int>(wideRight);
  std::fill(row(y) + left, row(y) + right, word);
  touched(y, left, right);
}

std::uint64_t Surface::nextVersion() {
  static std::uint64_t version = 0;
  return ++version;
}

// Most of what is drawn is there already from the frame before. A tile that the same content covered last is
// left alone; of the others only what differs is written, for to look is cheaper than to write.
template <class SourceAt>
void Surface::drawOverTile(const xplEdges& part, int column, int row, std::uint64_t content,
                           SourceAt sourceAt) {
  const xplEdges tile = m_changes->edgesOf(column, row);
  const bool isWhole = part.left <= tile.left && part.top <= tile.top && part.right >= tile.right &&
                       part.bottom >= tile.bottom;
  if (isWhole && m_changes->isCoveredBy(column, row, content)) {
    return;
  }
  const int left = std::max(part.left, tile.left);
  const int right = std::min(part.right, tile.right);
  const auto bytes = static_cast<std::size_t>(right - left) * sizeof(std::uint32_t);
  std::uint8_t changedRows = 0;
  for (int y = std::max(part.top, tile.top); y < std::min(part.bottom, tile.bottom); ++y) {
    std::uint32_t* const to = this->row(y) + left;
    const std::uint32_t* const from = sourceAt(left, y);
    if (std::memcmp(to, from, bytes) != 0) {
      std::memcpy(to, from, bytes);
      changedRows |= TileChanges::rowsOf(y, y + 1);
    }
  }
  m_changes->drawnOver(column, row, isWhole ? content : 0, changedRows);
}

template <class SourceAt>
void Surface::drawOver(const xplEdges& part, std::uint64_t content, SourceAt sourceAt) {
  if (part.left >= part.right || part.top >= part.bottom) {
    return;
  }
  for (int row = part.top / TileChanges::tileHeight; row <= (part.bottom - 1) / TileChanges::tileHeight;
       ++row) {
    for (int column = part.left / TileChanges::tileWidth; column <= (part.right - 1) / TileChanges::tileWidth;
         ++column) {
      drawOverTile(part, column, row, content, sourceAt);
    }
  }
}

void Surface::fillRect(const xplEdges& edges, xplColor color) {
  const Range columns = filledRange(edges.left, edges.right);
  const Range rows = filledRange(edges.top, edges.bottom);
  const xplEdges part = {std::max(columns.first, 0), std::max(rows.first, 0), std::min(columns.end, m_width),
                         std::min(rows.end, m_height)};
  const std::uint32_t word = wordOfColor(color);
  if (m_changes == nullptr) {
    for (int y = part.top; y < part.bottom; ++y) {
      fillRow(y, part.left, part.right, word);
    }
    return;
  }
  std::array<std::uint32_t, TileChanges::tileWidth> piece;
  piece.fill(word);
  drawOver(part, contentOfFill(word), [&piece](int, int) { return piece.data(); });
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
  if (right <= left || bottom <= top) {
    return;
  }
  if (!transparentColor && m_changes != nullptr) {
    const xplEdges part = {static_cast<int>(left + shiftX), static_cast<int>(top + shiftY),
                           static_cast<int>(right + shiftX), static_cast<int>(bottom + shiftY)};
    drawOver(part, contentOfBlit(source.m_version, shiftX, shiftY),
             [&](int toX, int toY) { return source.row(static_cast<int>(toY - shiftY)) + (toX - shiftX); });
    return;
  }
  for (Wide sourceRow = top; sourceRow < bottom; ++sourceRow) {
    const std::uint32_t* from = source.row(static_cast<int>(sourceRow)) + left;
    std::uint32_t* to = row(static_cast<int>(sourceRow + shiftY)) + (left + shiftX);
    if (!transparentColor) {
      std::copy_n(from, right - left, to);
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

void Surface::copyTo(std::vector<std::uint32_t>& pixels) const {
  pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height));
  for (int y = 0; y < m_height; ++y) {
    std::copy_n(row(y), m_width, pixels.begin() + std::ptrdiff_t{y} * m_width);
  }
}
