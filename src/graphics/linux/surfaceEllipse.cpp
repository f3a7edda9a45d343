// A picture in memory: ellipses, with the pixels that GDI gives.
#include <algorithm>
#include <cmath>

#include "graphics/linux/pixelWord.h"
#include "graphics/linux/surface.h"

namespace {

using Wide = std::int64_t;

constexpr xplColor penColor(0, 0, 0);

// The error of the exact outline grows with the third power of the size; up to here it fits into 64 bits.
constexpr Wide maxExactSize = Wide{1} << 19;

// Steps through the outline of the ellipse inside an inclusive box from its flanks to its tips: one column on
// the left and right, one row above and below the middle. Midpoint decision on the doubled error (A. Zingl,
// "A Rasterizing Algorithm for Drawing Curves", 2012).
class EllipseOutline {
 public:
  // box: exclusive on the right and at the bottom; at least 3 pixels wide and 2 high.
  explicit EllipseOutline(const WideEdges& box)
      : EllipseOutline(box.right - 1 - box.left, box.bottom - 1 - box.top, box) {}

  bool done() const { return m_left > m_right; }
  Wide left() const { return m_left; }
  Wide lower() const { return m_lower; }
  Wide upper() const { return m_upper; }

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
  // width and height: of the box, minus one.
  EllipseOutline(Wide width, Wide height, const WideEdges& box)
      : m_left(box.left),
        m_right(box.right - 1),
        m_lower(box.top + (height + 1) / 2),
        m_upper(m_lower - height % 2),
        m_stepX(4 * (1 - width) * height * height),
        m_stepY(4 * (height % 2 + 1) * width * width),
        m_error(m_stepX + m_stepY + height % 2 * width * width),
        m_width2(8 * width * width),
        m_height2(8 * height * height) {}

  Wide m_left;
  Wide m_right;
  Wide m_lower;
  Wide m_upper;
  Wide m_stepX;
  Wide m_stepY;
  Wide m_error;
  Wide m_width2;
  Wide m_height2;
};

// The left half of an ellipse that is too large for the exact outline.
class HugeEllipse {
 public:
  explicit HugeEllipse(const WideEdges& box)
      : m_radiusX(static_cast<double>(box.right - 1 - box.left) / 2),
        m_radiusY(static_cast<double>(box.bottom - 1 - box.top) / 2),
        m_centreX(static_cast<double>(box.left) + m_radiusX),
        m_centreY(static_cast<double>(box.top) + m_radiusY) {}

  Wide outer(Wide y) const { return leftAt(static_cast<double>(y)); }
  // Where the outline of this row meets that of the next one towards the tip.
  Wide inner(Wide y) const {
    const auto row = static_cast<double>(y);
    return std::max(outer(y), leftAt(row < m_centreY ? row - 1 : row + 1) - 1);
  }

 private:
  Wide leftAt(double y) const {
    const double height = (y - m_centreY) / m_radiusY;
    const double reach = m_radiusX * std::sqrt(std::max(0.0, (1 - height) * (1 + height)));
    return std::llround(m_centreX - reach);
  }

  double m_radiusX;
  double m_radiusY;
  double m_centreX;
  double m_centreY;
};

// Calls drawRow(y, outer, inner) for the rows of an ellipse whose sides are at most maxExactSize: the outline
// of row y goes from `outer` to `inner`.
template <class DrawRow>
void drawExactRows(const WideEdges& box, const DrawRow& drawRow) {
  EllipseOutline outline(box);
  while (!outline.done()) {
    const Wide outer = outline.left();
    const Wide lower = outline.lower();
    const Wide upper = outline.upper();
    Wide inner = outer;
    for (outline.advance(); !outline.done() && outline.lower() == lower; outline.advance()) {
      inner = outline.left();
    }
    drawRow(lower, outer, inner);
    drawRow(upper, outer, inner);
  }
}

}  // namespace

void Surface::fillEllipse(const xplEdges& edges, xplColor color) {
  const auto [left, right] = std::minmax(edges.left, edges.right);
  const auto [top, bottom] = std::minmax(edges.top, edges.bottom);
  drawEllipse({left, top, right, bottom}, wordOfColor(penColor), wordOfColor(color));
}

void Surface::drawEllipse(const WideEdges& box, std::uint32_t pen, std::uint32_t brush) {
  const Wide width = box.right - box.left;
  const Wide height = box.bottom - box.top;
  const bool isOutside = box.left >= m_width || box.top >= m_height || box.right <= 0 || box.bottom <= 0;
  if (width <= 0 || height <= 0 || (width == 1 && height == 1) || isOutside) {
    return;  // a single pixel is no ellipse
  }
  // The outline of a row goes from `outer` to `inner` and is the same, mirrored, on the right.
  const Wide mirror = box.left + box.right - 1;
  const auto drawRow = [&](Wide y, Wide outer, Wide inner) {
    fillRow(y, outer, inner + 1, pen);
    fillRow(y, inner + 1, mirror - inner, brush);
    fillRow(y, mirror - inner, mirror - outer + 1, pen);
  };
  const Wide firstRow = std::max(box.top, Wide{0});
  const Wide endRow = std::min(box.bottom, Wide{m_height});
  if (width <= 2 || height == 1) {
    for (Wide y = firstRow; y < endRow; ++y) {
      fillRow(y, box.left, box.right, pen);  // nothing but outline
    }
    return;
  }
  if (std::max(width, height) > maxExactSize) {
    const HugeEllipse ellipse(box);
    for (Wide y = firstRow; y < endRow; ++y) {
      drawRow(y, ellipse.outer(y), ellipse.inner(y));
    }
    return;
  }
  drawExactRows(box, drawRow);
}
