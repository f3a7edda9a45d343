// Knows which parts of a picture have changed since they were shown last.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "graphics/linux/edges.h"
#include "graphics/linux/pixelMemory.h"

// The picture is cut into tiles. Whoever draws marks the tiles that he writes to; when the picture is to be
// shown, the content of each marked tile is compared, by a hash, with what was shown there last. Of a sky
// that is drawn anew in every frame little is ever different, and only that is sent to the display.
class TileChanges {
 public:
  // Small ones: a star is 7 pixels wide, and its tiles are read again in each frame. Smaller ones still would
  // cost more parts to be sent than they save.
  static constexpr int tileWidth = 32;  // pixels
  static constexpr int tileHeight = 8;  // pixels

  // Size of the picture in pixels. At first nothing counts as shown.
  TileChanges(int width, int height);

  // Pixels of a row may have changed; the range must lie in the picture.
  void mark(int y, int left, int right) {
    if (left < right) {
      const std::size_t row = static_cast<std::size_t>(y / tileHeight) * m_columns;
      const std::uint8_t touched = rowsOf(y, y + 1);
      for (int column = left / tileWidth; column <= (right - 1) / tileWidth; ++column) {
        m_touchedRows[row + static_cast<std::size_t>(column)] |= touched;
        m_cover[row + static_cast<std::size_t>(column)] = 0;
      }
    }
  }
  // A tile that was last drawn over as a whole remembers by what, so that the same needs no drawing again.
  // `cover` stands for the drawn content and is never 0; the tile is named by its column and row.
  bool isCoveredBy(int column, int row, std::uint64_t cover) const {
    return m_cover[tileAt(column, row)] == cover;
  }
  // Rows of one tile, [top, bottom) of the picture and not empty, as bits.
  static std::uint8_t rowsOf(int top, int bottom) {
    const unsigned toEnd = (2U << ((bottom - 1) % tileHeight)) - 1;
    const unsigned before = (1U << (top % tileHeight)) - 1;
    return static_cast<std::uint8_t>(toEnd & ~before);
  }
  // The tile was drawn over: as a whole by this content, or partly (0). changedRows: those whose pixels are
  // not what they were.
  void drawnOver(int column, int row, std::uint64_t cover, std::uint8_t changedRows);
  // The tile's part of the picture.
  xplEdges edgesOf(int column, int row) const;
  void markAll();
  // What was shown is lost: everything counts as changed, whatever it holds.
  void forgetShown();

  // The parts that differ from what was shown, in rows from the top, which now count as shown. Valid until
  // the next call.
  const std::vector<xplEdges>& takeChanged(const PixelMemory& memory);

 private:
  static_assert(tileHeight <= 8, "the rows of a tile are the bits of a byte");

  // The part of a tile in which these rows, at least one, lie.
  xplEdges edgesOfRows(int column, int row, std::uint8_t rows) const;
  std::size_t tileAt(int column, int row) const {
    return static_cast<std::size_t>(row) * m_columns + static_cast<std::size_t>(column);
  }

  int m_width;
  int m_height;
  std::size_t m_columns;
  std::size_t m_rows;
  std::vector<std::uint8_t> m_touchedRows;  // of each tile, since it was shown
  std::vector<std::uint64_t> m_cover;  // what each tile was last drawn over by; 0 where that is not known
  std::vector<std::uint64_t> m_shown;  // the hash of each tile; 0 where nothing was shown
  std::vector<xplEdges> m_changed;
};
