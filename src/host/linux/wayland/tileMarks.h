// Marks on the tiles of a picture's part: which of them are out of date in a buffer.
#pragma once

#include <cstddef>
#include <cstdint>
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
  bool isAnyMarked() const { return m_marked > 0; }

  // Takes the marks off all tiles that the part touches. For those marked tiles of which it leaves something
  // it calls `partly` with the tile's edges first.
  template <class Partly>
  void cover(const xplEdges& part, const Partly& partly) {
    for (int row = rowOf(part.top); row <= rowOf(part.bottom - 1); ++row) {
      for (int column = columnOf(part.left); column <= columnOf(part.right - 1); ++column) {
        std::uint8_t& mark = m_marks[at(column, row)];
        if (mark != 0) {
          const xplEdges tile = edgesOf(column, row);
          if (!contains(part, tile)) {
            partly(tile);
          }
          mark = 0;
          --m_marked;
        }
      }
    }
  }
  // Takes all marks off, and calls `each` with the edges of every tile that had one.
  template <class Each>
  void takeAll(const Each& each) {
    for (int row = 0; m_marked > 0 && row < m_rows; ++row) {
      for (int column = 0; column < m_columns; ++column) {
        std::uint8_t& mark = m_marks[at(column, row)];
        if (mark != 0) {
          mark = 0;
          --m_marked;
          each(edgesOf(column, row));
        }
      }
    }
  }

 private:
  static bool contains(const xplEdges& part, const xplEdges& tile) {
    return part.left <= tile.left && part.top <= tile.top && part.right >= tile.right &&
           part.bottom >= tile.bottom;
  }
  std::size_t at(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
  }
  int columnOf(int x) const;
  int rowOf(int y) const;
  xplEdges edgesOf(int column, int row) const;

  int m_width;
  int m_height;
  int m_offsetX;  // of the upper left corner in its tile, in [0, TileChanges::tileWidth)
  int m_offsetY;
  int m_columns;
  int m_rows;
  std::vector<std::uint8_t> m_marks;
  std::size_t m_marked = 0;  // tiles that have a mark
};
