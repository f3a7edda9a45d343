// A picture in memory: ellipses, lines and scaling, with the pixels that GDI gives.
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "graphics/linux/pixelWord.h"
#include "graphics/linux/surface.h"

namespace {

using Wide = std::int64_t;

constexpr xplColor penColor(0, 0, 0);

// Shapes wholly or partly this far outside any real surface are not drawn: their arithmetic would overflow.
constexpr int farAway = 1 << 24;

bool isFarAway(int coordinate) {
  return coordinate < -farAway || coordinate > farAway;
}

// Steps through the outline of the ellipse inside an inclusive box from its flanks to its tips: one column on
// the left and right, one row above and below the middle. Midpoint decision on the doubled error (A. Zingl,
// "A Rasterizing Algorithm for Drawing Curves", 2012).
class EllipseOutline {
 public:
  // width and height: of the box, minus one; at least 2 and 1.
  EllipseOutline(Wide width, Wide height, int left, int top, int right)
      : m_left(left),
        m_right(right),
        m_lower(static_cast<int>(top + (height + 1) / 2)),
        m_upper(static_cast<int>(m_lower - height % 2)),
        m_stepX(4 * (1 - width) * height * height),
        m_stepY(4 * (height % 2 + 1) * width * width),
        m_error(m_stepX + m_stepY + height % 2 * width * width),
        m_width2(8 * width * width),
        m_height2(8 * height * height) {}

  bool done() const { return m_left > m_right; }
  int left() const { return m_left; }
  int right() const { return m_right; }
  int lower() const { return m_lower; }
  int upper() const { return m_upper; }

  void advance() {
    const Wide doubled = 2 * m_error;
    if (doubled >= m_stepX) {
      ++m_left;
      --m_right;
      m_stepX += m_height2;
      m_error += m_stepX;
    }
    if (doubled <= m_stepY) {
      ++m_lower;
      --m_upper;
      m_stepY += m_width2;
      m_error += m_stepY;
    }
  }

 private:
  int m_left;
  int m_right;
  int m_lower;
  int m_upper;
  Wide m_stepX;
  Wide m_stepY;
  Wide m_error;
  Wide m_width2;
  Wide m_height2;
};

// The source index for each target index of one direction of the scaler.
std::vector<int> enlargedIndexes(int from, int to) {
  std::vector<int> indexes(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    indexes[static_cast<std::size_t>(i)] = static_cast<int>(((2 * Wide{i} + 1) * from - 1) / (2 * Wide{to}));
  }
  return indexes;
}

// Where the run of source rows or columns that shrinks to one target index begins.
int startOfRun(int index, int from, int to) {
  return static_cast<int>((2 * Wide{index} * from + to) / (2 * Wide{to}));
}

std::vector<int> sourceRows(int from, int to) {
  if (to >= from) {
    return enlargedIndexes(from, to);
  }
  std::vector<int> rows(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    rows[static_cast<std::size_t>(i)] = startOfRun(i, from, to);
  }
  return rows;
}

// Deliberate: of a run of columns the last one stays where of a run of rows the first one does, and a picture
// that shrinks to a single column keeps the last but one. The platform's scaler does so, and both must look
// alike.
std::vector<int> sourceColumns(int from, int to) {
  if (to >= from) {
    return enlargedIndexes(from, to);
  }
  if (to == 1) {
    return {from - 2};
  }
  std::vector<int> columns(static_cast<std::size_t>(to));
  for (int i = 0; i < to; ++i) {
    columns[static_cast<std::size_t>(i)] = startOfRun(i + 1, from, to) - 1;
  }
  return columns;
}

}  // namespace

void Surface::fillEllipse(const xplEdges& edges, xplColor color) {
  const int left = std::min(edges.left, edges.right);
  const int top = std::min(edges.top, edges.bottom);
  const int right = std::max(edges.left, edges.right) - 1;
  const int bottom = std::max(edges.top, edges.bottom) - 1;
  if (isFarAway(left) || isFarAway(top) || isFarAway(right) || isFarAway(bottom)) {
    return;
  }
  if (right < left || bottom < top || (right == left && bottom == top)) {
    return;  // a single pixel is no ellipse
  }
  if (right - left <= 1 || top == bottom) {
    fillRect({left, top, right + 1, bottom + 1}, penColor);  // nothing but outline
    return;
  }
  // The inside of a row lies between the innermost outline pixels of that row.
  const std::uint32_t brush = wordOfColor(color);
  for (EllipseOutline outline(right - left, bottom - top, left, top, right); !outline.done();
       outline.advance()) {
    for (const int y : {outline.lower(), outline.upper()}) {
      setPixel(outline.left(), y, penColor);
      setPixel(outline.right(), y, penColor);
      fillRow(y, outline.left() + 1, outline.right(), brush);
    }
  }
}

void Surface::drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) {
  if (isFarAway(x1) || isFarAway(y1) || isFarAway(x2) || isFarAway(y2)) {
    return;
  }
  const int stepX = x2 >= x1 ? 1 : -1;
  const int stepY = y2 >= y1 ? 1 : -1;
  const int dx = std::abs(x2 - x1);
  const int dy = std::abs(y2 - y1);
  const bool alongX = dx >= dy;
  const int length = alongX ? dx : dy;
  const int aside = alongX ? dy : dx;
  // A tie goes to the side that makes a line and its way back the same pixels.
  const int bias = (alongX ? stepY : stepX) < 0 ? 1 : 0;
  Wide error = 2 * Wide{aside} - length;
  int x = x1;
  int y = y1;
  const auto put = [&] {
    if (penWidth <= 1) {
      setPixel(x, y, color);
      return;
    }
    const int before = (penWidth - 1) / 2;
    fillRect({x - before, y - before, x - before + penWidth, y - before + penWidth}, color);
  };
  for (int i = 0; i < length; ++i) {
    put();
    if (error + bias > 0) {
      (alongX ? y : x) += alongX ? stepY : stepX;
      error -= 2 * Wide{length};
    }
    error += 2 * Wide{aside};
    (alongX ? x : y) += alongX ? stepX : stepY;
  }
}

void Surface::stretchFrom(const Surface& source) {
  if (source.m_width <= 0 || source.m_height <= 0 || m_width <= 0 || m_height <= 0) {
    return;
  }
  const std::vector<int> rows = sourceRows(source.m_height, m_height);
  const std::vector<int> columns = sourceColumns(source.m_width, m_width);
  for (int y = 0; y < m_height; ++y) {
    const std::uint32_t* from = source.row(rows[static_cast<std::size_t>(y)]);
    std::uint32_t* to = row(y);
    touched(y, 0, m_width);
    for (const int column : columns) {
      *to++ = from[column];
    }
  }
}
