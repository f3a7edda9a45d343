// Finds the parts of a picture that have changed.
#include "graphics/linux/tileChanges.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace {

std::size_t tilesIn(int length, int tileLength) {
  return length <= 0 ? 0 : static_cast<std::size_t>((length - 1) / tileLength + 1);
}

std::uint64_t mixed(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x9e3779b97f4a7c15U;
  return hash ^ (hash >> 32);
}

std::uint64_t pairAt(const std::uint32_t* pixels) {
  return pixels[0] | (std::uint64_t{pixels[1]} << 32);
}

// Never 0, which stands for nothing shown. Four hashes are carried side by side, since each step of one waits
// for the step before it: this is half of the cost of a frame.
std::uint64_t hashOfPart(const PixelMemory& memory, const xplEdges& part) {
  std::array<std::uint64_t, 4> lanes = {1, 2, 3, 4};
  for (int y = part.top; y < part.bottom; ++y) {
    const std::uint32_t* const row = memory.pixels() + static_cast<std::size_t>(y) * memory.stride();
    int x = part.left;
    for (; x + 7 < part.right; x += 8) {
      lanes[0] = mixed(lanes[0], pairAt(row + x));
      lanes[1] = mixed(lanes[1], pairAt(row + x + 2));
      lanes[2] = mixed(lanes[2], pairAt(row + x + 4));
      lanes[3] = mixed(lanes[3], pairAt(row + x + 6));
    }
    for (; x < part.right; ++x) {
      lanes[0] = mixed(lanes[0], row[x]);
    }
  }
  const std::uint64_t hash = mixed(mixed(mixed(lanes[0], lanes[1]), lanes[2]), lanes[3]);
  return hash == 0 ? 1 : hash;
}

constexpr std::uint8_t allRows = 0xff;

}  // namespace

TileChanges::TileChanges(int width, int height)
    : m_width(width),
      m_height(height),
      m_columns(tilesIn(width, tileWidth)),
      m_rows(tilesIn(height, tileHeight)),
      m_touchedRows(m_columns * m_rows, allRows),
      m_cover(m_columns * m_rows, 0),
      m_shown(m_columns * m_rows, 0) {}

void TileChanges::drawnOver(int column, int row, std::uint64_t cover, std::uint8_t changedRows) {
  const std::size_t tile = tileAt(column, row);
  m_cover[tile] = cover;
  m_touchedRows[tile] |= changedRows;
}

void TileChanges::markAll() {
  std::fill(m_touchedRows.begin(), m_touchedRows.end(), allRows);
  std::fill(m_cover.begin(), m_cover.end(), std::uint64_t{0});
}

void TileChanges::forgetShown() {
  markAll();
  std::fill(m_shown.begin(), m_shown.end(), std::uint64_t{0});
}

xplEdges TileChanges::edgesOf(int column, int row) const {
  const int left = column * tileWidth;
  const int top = row * tileHeight;
  return {left, top, std::min(left + tileWidth, m_width), std::min(top + tileHeight, m_height)};
}

xplEdges TileChanges::edgesOfRows(int column, int row, std::uint8_t rows) const {
  xplEdges edges = edgesOf(column, row);
  edges.bottom = std::min(edges.top + std::bit_width(rows), edges.bottom);
  edges.top += std::countr_zero(rows);
  return edges;
}

const std::vector<xplEdges>& TileChanges::takeChanged(const PixelMemory& memory) {
  m_changed.clear();
  for (std::size_t row = 0; row < m_rows; ++row) {
    bool joins = false;  // the tile on the left has changed as well
    for (std::size_t column = 0; column < m_columns; ++column) {
      const std::size_t tile = row * m_columns + column;
      const std::uint8_t touchedRows = std::exchange(m_touchedRows[tile], std::uint8_t{0});
      const int x = static_cast<int>(column);
      const int y = static_cast<int>(row);
      const std::uint64_t hash = touchedRows != 0 ? hashOfPart(memory, edgesOf(x, y)) : m_shown[tile];
      const bool isChanged = hash != m_shown[tile];
      m_shown[tile] = hash;
      if (isChanged) {
        const xplEdges part = edgesOfRows(x, y, touchedRows);
        if (joins) {
          xplEdges& last = m_changed.back();
          last = {last.left, std::min(last.top, part.top), part.right, std::max(last.bottom, part.bottom)};
        } else {
          m_changed.push_back(part);
        }
      }
      joins = isChanged;
    }
  }
  return m_changed;
}
