// Places and rectangles that may lie outside the range of int.
#pragma once

#include <array>
#include <cstdint>

// Pixels. Sums of a few ints fit, so shapes are laid out in these before they are clipped.
struct WidePoint {
  std::int64_t x = 0;
  std::int64_t y = 0;
};

// Right and bottom are exclusive.
struct WideEdges {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t right = 0;
  std::int64_t bottom = 0;
};

// The corners of a convex quadrilateral in their order.
using WideCorners = std::array<WidePoint, 4>;
