// Implements the arithmetic of marked tiles.
#include "host/linux/wayland/tileMarks.h"

#include <algorithm>
#include <bit>

#include "graphics/linux/tileChanges.h"

namespace {

constexpr int tileWidth = TileChanges::tileWidth;
constexpr int tileHeight = TileChanges::tileHeight;

// In [0, step), for a negative value too.
int withinTile(int value, int step) {
  return ((value % step) + step) % step;
}

}  // namespace

TileMarks::TileMarks(int width, int height, int left, int top)
    : m_width(width),
      m_height(height),
      m_offsetX(withinTile(left, tileWidth)),
      m_offsetY(withinTile(top, tileHeight)),
      m_columns((m_offsetX + width - 1) / tileWidth + 1),
      m_rows(static_cast<std::size_t>(m_columns) *
                 static_cast<std::size_t>((m_offsetY + height - 1) / tileHeight + 1),
             0),
      m_marked((m_rows.size() - 1) / bitsOfWord + 1, 0) {}

int TileMarks::columnOf(int x) const {
  return (m_offsetX + x) / tileWidth;
}

int TileMarks::rowOf(int y) const {
  return (m_offsetY + y) / tileHeight;
}

xplEdges TileMarks::edgesOf(int column, int row) const {
  const int left = column * tileWidth - m_offsetX;
  const int top = row * tileHeight - m_offsetY;
  return {std::max(left, 0), std::max(top, 0), std::min(left + tileWidth, m_width),
          std::min(top + tileHeight, m_height)};
}

xplEdges TileMarks::edgesOfRows(int column, int row, std::uint8_t rows) const {
  const xplEdges edges = edgesOf(column, row);
  const int top = row * tileHeight - m_offsetY;
  return {edges.left, std::max(top + std::countr_zero(rows), edges.top), edges.right,
          std::min(top + std::bit_width(rows), edges.bottom)};
}

std::uint8_t TileMarks::rowsIn(const xplEdges& part, int row) const {
  const int top = row * tileHeight;
  return TileChanges::rowsOf(std::max(m_offsetY + part.top, top),
                             std::min(m_offsetY + part.bottom, top + tileHeight));
}

void TileMarks::mark(const xplEdges& part) {
  for (int row = rowOf(part.top); row <= rowOf(part.bottom - 1); ++row) {
    const std::uint8_t rows = rowsIn(part, row);
    for (int column = columnOf(part.left); column <= columnOf(part.right - 1); ++column) {
      const std::size_t tile = static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
                               static_cast<std::size_t>(column);
      m_rows[tile] |= rows;
      m_marked[tile / bitsOfWord] |= std::uint64_t{1} << (tile % bitsOfWord);
    }
  }
}

void TileMarks::markAll() {
  mark({0, 0, m_width, m_height});
}
