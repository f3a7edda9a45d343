// Implements the image's operations that are made of others.
#include "graphics/imageBase.h"

#include <limits>

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

}  // namespace

void xplImageBase::scaleBy(float factor) {
  const int width = truncatedProduct(getWidth(), factor);
  const int height = truncatedProduct(getHeight(), factor);
  resizeTo(width, height);
}
