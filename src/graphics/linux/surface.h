// A picture in memory: 32 bits a pixel, blue in the lowest byte, the highest byte always 255.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "graphics/color.h"
#include "graphics/linux/edges.h"
#include "graphics/linux/pixelMemory.h"
#include "graphics/linux/tileChanges.h"
#include "graphics/linux/wideGeometry.h"

// Only this folder may see the memory behind a surface: what is drawn is going to be recorded, so everything
// else draws through the operations. Every operation clips to the surface, and gives the pixels that GDI
// gives.
class Surface {
 public:
  // Sizes in pixels; a size of 0 or below makes an empty surface. Throws std::bad_alloc where there is no
  // memory. The content is undefined until it is filled.
  Surface(int width, int height);
  // Takes over memory that a native window supplied.
  explicit Surface(std::unique_ptr<PixelMemory> memory);

  int width() const { return m_width; }
  int height() const { return m_height; }

  xplColor getPixel(int x, int y) const;  // white outside
  void setPixel(int x, int y, xplColor color);
  // Where the right edge lies left of the left one, the pixels from the right edge, exclusive, to the left
  // one, inclusive, are filled; likewise from top to bottom.
  void fillRect(const xplEdges& edges, xplColor color);
  // The ellipse inside the edges, filled with the colour, with the one-pixel black outline of GDI's default
  // pen.
  void fillEllipse(const xplEdges& edges, xplColor color);
  // Of a line one pixel wide the last pixel is not drawn; a wider pen is round and stands on both ends. A
  // width of 0 counts as 1, a negative one as its amount.
  void drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color);
  // Copies the source's pixels from (sourceX, sourceY) on, except those of exactly the transparent colour.
  void blit(int x, int y, const Surface& source, int sourceX, int sourceY, int width, int height,
            std::optional<xplColor> transparentColor);
  // Copies the whole source into the whole surface, dropping or repeating pixels.
  void stretchFrom(const Surface& source);

  // All pixels, row by row from the top without gaps: 0xffRRGGBB each.
  void copyTo(std::vector<std::uint32_t>& pixels) const;

  // From now on the surface knows what has changed since it was shown last; see TileChanges.
  void trackChanges();
  // Null unless they are tracked.
  TileChanges* changes() { return m_changes.get(); }

  // For this folder only: the pixels, row by row, stride() words to a row. Who writes to them says where:
  // touched().
  std::uint32_t* pixels() {
    m_version = nextVersion();
    return m_memory->pixels();
  }
  const std::uint32_t* pixels() const { return std::as_const(*m_memory).pixels(); }
  // [left, right) of a row, which must lie on the surface, may have changed.
  void touched(int y, int left, int right) {
    if (m_changes != nullptr) {
      m_changes->mark(y, left, right);
    }
  }
  std::size_t stride() const { return m_memory->stride(); }
  PixelMemory& memory() {
    m_version = nextVersion();
    return *m_memory;
  }

 private:
  // A number that no content of any surface has had before.
  static std::uint64_t nextVersion();
  // Draws opaque pixels over a part, which must lie on the surface. sourceAt(x, y) points to the pixels of a
  // row from that place on; content is a number that stands for what is drawn, never 0.
  template <class SourceAt>
  void drawOver(const xplEdges& part, std::uint64_t content, SourceAt sourceAt);
  template <class SourceAt>
  void drawOverTile(const xplEdges& part, int column, int row, std::uint64_t content, SourceAt sourceAt);

  std::uint32_t* row(int y) { return pixels() + static_cast<std::size_t>(y) * stride(); }
  const std::uint32_t* row(int y) const { return pixels() + static_cast<std::size_t>(y) * stride(); }
  // Fills [left, right) of a row, clipped.
  void fillRow(std::int64_t y, std::int64_t left, std::int64_t right, std::uint32_t word);
  // The ellipse inside the box with an outline in the pen's colour.
  void drawEllipse(const WideEdges& box, std::uint32_t pen, std::uint32_t brush);
  void drawThinLine(const WidePoint& from, const WidePoint& to, xplColor color);
  // penWidth: at least 2.
  void drawWideLine(const WidePoint& from, const WidePoint& to, std::int64_t penWidth, std::uint32_t word);
  void fillQuadrilateral(const WideCorners& corners, std::uint32_t word);

  std::unique_ptr<PixelMemory> m_memory;
  std::unique_ptr<TileChanges> m_changes;  // null unless changes are tracked
  int m_width;
  int m_height;
  std::uint64_t m_version = nextVersion();  // of the content: anew with every access that may write
};
