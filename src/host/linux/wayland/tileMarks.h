// Marks on rows of the tiles of a picture's part: which of them are out of date in a buffer.
#pragma once

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
    for (int row = 0; m_marked > 0 && row < m_rows; ++row) {
      for (int column = 0; column < m_columns; ++column) {
        const std::uint8_t rows = std::exchange(m_marks[at(column, row)], std::uint8_t{0});
        if (rows != 0) {
          --m_marked;
          each(edgesOfRows(column, row, rows));
        }
      }
    }
  }

 private:
  std::size_t at(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
  }
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
  int m_rows;
  std::vector<std::uint8_t> m_marks;  // of each tile: its marked rows, as TileChanges::rowsOf() has them
  std::size_t m_marked = 0;           // tiles that have a mark
};
