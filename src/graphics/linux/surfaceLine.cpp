// A picture in memory: lines, with the pixels that GDI gives.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "graphics/linux/pixelWord.h"
#include "graphics/linux/surface.h"

namespace {

using Wide = std::int64_t;

// Where a line stands on the axis along which it moves one pixel a step.
struct MajorAxis {
  Wide start = 0;
  Wide step = 1;    // 1 or -1
  Wide length = 0;  // steps, at least 1

  // The steps that stand in [0, size): first, and one after the last.
  Wide firstStep(Wide size) const { return std::max(Wide{0}, step > 0 ? -start : start - size + 1); }
  Wide endStep(Wide size) const { return std::min(length, step > 0 ? size - start : start + 1); }
};

// How far a line has moved aside after so many steps: steps * aside / length, rounded. A tie moves on where
// `tieMoves` is 1 and stays where it is 0.
Wide movedAside(Wide steps, Wide aside, Wide length, Wide tieMoves) {
  // The product of two distances between ints fits only without a sign.
  const std::uint64_t product = static_cast<std::uint64_t>(steps) * static_cast<std::uint64_t>(aside);
  const auto whole = static_cast<Wide>(product / static_cast<std::uint64_t>(length));
  const auto rest = static_cast<Wide>(product % static_cast<std::uint64_t>(length));
  return whole + (2 * rest + length + tieMoves - 1) / (2 * length);
}

// How far a wide pen's stroke reaches across the line in one direction: the pen's share of it, rounded up.
Wide reachOf(Wide penWidth, Wide distance, double length) {
  return static_cast<Wide>(std::ceil(static_cast<double>(penWidth * std::abs(distance)) / length));
}

// The first column on or right of the edge in a row; the edge must cross it.
Wide columnOf(const WidePoint& upper, const WidePoint& lower, Wide y) {
  const double run = static_cast<double>(lower.x - upper.x) * static_cast<double>(y - upper.y);
  return upper.x + static_cast<Wide>(std::ceil(run / static_cast<double>(lower.y - upper.y)));
}

}  // namespace

void Surface::drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) {
  // No surface is wider than this.
  constexpr Wide maxPenWidth = 1 << 20;
  const Wide width = std::min(std::abs(Wide{penWidth}), maxPenWidth);
  if (width <= 1) {
    drawThinLine({x1, y1}, {x2, y2}, color);
  } else {
    drawWideLine({x1, y1}, {x2, y2}, width, wordOfColor(color));
  }
}

void Surface::drawThinLine(const WidePoint& from, const WidePoint& to, xplColor color) {
  const Wide dx = std::abs(to.x - from.x);
  const Wide dy = std::abs(to.y - from.y);
  const Wide stepX = to.x >= from.x ? 1 : -1;
  const Wide stepY = to.y >= from.y ? 1 : -1;
  const bool isAlongX = dx >= dy;
  const MajorAxis axis = isAlongX ? MajorAxis{from.x, stepX, dx} : MajorAxis{from.y, stepY, dy};
  const Wide minorStart = isAlongX ? from.y : from.x;
  const Wide minorStep = isAlongX ? stepY : stepX;
  const Wide minorSize = isAlongX ? m_height : m_width;
  const Wide aside = isAlongX ? dy : dx;
  // A tie goes to the side that makes a line and its way back the same pixels.
  const Wide tieMoves = minorStep < 0 ? 1 : 0;
  const Wide end = axis.endStep(isAlongX ? m_width : m_height);
  for (Wide i = axis.firstStep(isAlongX ? m_width : m_height); i < end; ++i) {
    const Wide minor = minorStart + minorStep * movedAside(i, aside, axis.length, tieMoves);
    if (minor >= 0 && minor < minorSize) {
      const int major = static_cast<int>(axis.start + axis.step * i);
      setPixel(isAlongX ? major : static_cast<int>(minor), isAlongX ? static_cast<int>(minor) : major, color);
    }
  }
}

// Deliberate: a wide line does reach its last point, and beyond it by half of the pen, which a thin one does
// not: the pen is round and stands on both ends. The platform draws so. Do not shorten it.
void Surface::drawWideLine(const WidePoint& from, const WidePoint& to, std::int64_t penWidth,
                           std::uint32_t word) {
  for (const WidePoint& end : {from, to}) {
    const Wide left = end.x - penWidth / 2;
    const Wide top = end.y - penWidth / 2;
    drawEllipse({left, top, left + penWidth, top + penWidth}, word, word);
  }
  const Wide dx = to.x - from.x;
  const Wide dy = to.y - from.y;
  if (dx == 0 && dy == 0) {
    return;
  }
  // The stroke's corners lie on both sides of the ends; of an odd reach the right, or lower, side has more.
  const double length = std::sqrt(static_cast<double>(dx) * static_cast<double>(dx) +
                                  static_cast<double>(dy) * static_cast<double>(dy));
  const Wide reachX = reachOf(penWidth, dy, length);
  const Wide reachY = reachOf(penWidth, dx, length);
  const Wide signY = dy != 0 && (dx > 0) == (dy > 0) ? -1 : 1;
  const WidePoint more = {(reachX + 1) / 2, signY * ((reachY + 1) / 2)};
  const WidePoint less = {-(reachX / 2), -signY * (reachY / 2)};
  fillQuadrilateral({{{from.x + more.x, from.y + more.y},
                      {from.x + less.x, from.y + less.y},
                      {to.x + less.x, to.y + less.y},
                      {to.x + more.x, to.y + more.y}}},
                    word);
}

void Surface::fillQuadrilateral(const WideCorners& corners, std::uint32_t word) {
  const auto [highest, lowest] = std::minmax_element(
      corners.begin(), corners.end(), [](const WidePoint& a, const WidePoint& b) { return a.y < b.y; });
  const Wide endRow = std::min(lowest->y, Wide{m_height});
  for (Wide y = std::max(highest->y, Wide{0}); y < endRow; ++y) {
    Wide left = std::numeric_limits<Wide>::max();
    Wide right = std::numeric_limits<Wide>::min();
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const WidePoint& here = corners[i];
      const WidePoint& next = corners[(i + 1) % corners.size()];
      const WidePoint& upper = here.y <= next.y ? here : next;
      const WidePoint& lower = here.y <= next.y ? next : here;
      if (upper.y <= y && y < lower.y) {
        const Wide column = columnOf(upper, lower, y);
        left = std::min(left, column);
        right = std::max(right, column);
      }
    }
    fillRow(y, left, right, word);
  }
}
