// Implements the arithmetic and the copying of parts.
#include "host/linux/wayland/pictureParts.h"

#include <algorithm>

bool areSame(const xplEdges& one, const xplEdges& other) {
  return one.left == other.left && one.top == other.top && one.right == other.right &&
         one.bottom == other.bottom;
}

void copyPixels(const PixelMemory& from, const xplEdges& part, PixelMemory& to, int x, int y) {
  if (isEmpty(part)) {
    return;
  }
  const auto width = static_cast<std::size_t>(part.right - part.left);
  const std::uint32_t* source = from.pixels() + static_cast<std::size_t>(part.top) * from.stride() +
                                static_cast<std::size_t>(part.left);
  std::uint32_t* target =
      to.pixels() + static_cast<std::size_t>(y) * to.stride() + static_cast<std::size_t>(x);
  for (int row = part.top; row < part.bottom; ++row) {
    std::copy_n(source, width, target);
    source += from.stride();
    target += to.stride();
  }
}
