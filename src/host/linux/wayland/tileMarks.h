// Marks on rows of the tiles of a picture's part: which of them are out of date in a buffer.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "graphics/linux/edges.h"

// The tiles are those in which changes of the picture come (TileChanges), so that a changed part mostly
// covers whole ones.
class TileMarks {
 public:
  // Pixels, above 0. The upper left corner lies at (left, top) of the picture. Nothing is marked at first.
  TileMarks(int width, int height, int left, int top);

  // Parts lie within [0, width) x [0, height).
  void mark(const xplEdges& part);
  void markAll();

  // Takes all marks off, and calls `each` for every tile that had one, with the part of it that holds them.
  template <class Each>
  void takeAll(const Each& each) {
    for (std::size_t word = 0; word < m_marked.size(); ++word) {
      for (std::uint64_t left = std::exchange(m_marked[word], 0); left != 0; left &= left - 1) {
        const std::size_t tile = word * bitsOfWord + static_cast<std::size_t>(std::countr_zero(left));
        const auto columns = static_cast<std::size_t>(m_columns);
        each(edgesOfRows(static_cast<int>(tile % columns), static_cast<int>(tile / columns),
                         std::exchange(m_rows[tile], std::uint8_t{0})));
      }
    }
  }

 private:
  static constexpr std::size_t bitsOfWord = 64;

  int columnOf(int x) const;
  int rowOf(int y) const;
  xplEdges edgesOf(int column, int row) const;
  // The part of a tile in which these rows, at least one, lie.
  xplEdges edgesOfRows(int column, int row, std::uint8_t rows) const;
  // The rows of a tile that the part touches.
  std::uint8_t rowsIn(const xplEdges& part, int row) const;

  int m_width;
  int m_height;
  int m_offsetX;  // of the upper left corner in its tile, in [0, TileChanges::tileWidth)
  int m_offsetY;
  int m_columns;
  std::vector<std::uint8_t> m_rows;     // of each tile: its marked rows, as TileChanges::rowsOf() has them
  std::vector<std::uint64_t> m_marked;  // a bit for each tile that has a mark, so that few are looked at
};
