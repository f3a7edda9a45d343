// Implements the image's operations that are made of others.
#include "graphics/imageBase.h"

#include <cstdint>
#include <limits>

#include "support/log.h"

namespace {

// Towards zero; what no int can hold becomes the nearest one, and what is no number 0.
int truncatedProduct(int size, float factor) {
  const double product = static_cast<double>(static_cast<float>(size) * factor);
  if (product >= static_cast<double>(std::numeric_limits<int>::max())) {
    return std::numeric_limits<int>::max();
  }
  if (product <= static_cast<double>(std::numeric_limits<int>::min())) {
    return std::numeric_limits<int>::min();
  }
  return product == product ? static_cast<int>(product) : 0;
}

// The longest side of a display, and 1 GiB of pixels.
constexpr int maxSide = 32767;
constexpr std::int64_t maxPixels = std::int64_t{1} << 28;

}  // namespace

bool xplImageBase::isAllowedSize(int width, int height) {
  return width >= 1 && height >= 1 && width <= maxSide && height <= maxSide &&
         std::int64_t{width} * height <= maxPixels;
}

void xplImageBase::reportNoBitmap(const char* operation, int width, int height) {
  logError().addf("xplImageWin.%s() got no bitmap of w=%i, h=%i", operation, width, height);
}

void xplImageBase::scaleBy(float factor) {
  const int width = truncatedProduct(getWidth(), factor);
  const int height = truncatedProduct(getHeight(), factor);
  resizeTo(width, height);
}
