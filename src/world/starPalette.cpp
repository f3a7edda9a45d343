// Paints the pictures of the stars.
#include "world/starPalette.h"

#include <algorithm>

#include "support/log.h"

namespace {

// The empty pixel, which is also what is left out when a star is drawn.
constexpr xplColor empty(0, 0, 0);

// Sets a pixel of the quadrant at all the places that mirror it.
void setMirrored(xplImage& image, int i, int j, xplColor color) {
  constexpr int c = TstarImageBinder::center;
  for (const int signI : {1, -1}) {
    for (const int signJ : {1, -1}) {
      image.setPixel(c + signI * i, c + signJ * j, color);
      image.setPixel(c + signJ * j, c + signI * i, color);
    }
  }
}

}  // namespace

// Deliberate: image k shows the brightness k / 100, while a star of brightness b asks for image int(b * 99).
// The brightest star is thus a shade below full; all skies have looked so.
TstarImageBinder::TstarImageBinder(Quadrant (*quadrantOf)(float brightness)) {
  logInfo().addf("cImageBinder initializing %i images", imageCount);
  for (int k = 0; k < imageCount; ++k) {
    xplImage& image = m_images[static_cast<std::size_t>(k)];
    image.initWithSizeAndColor(imageSize, imageSize, empty);
    const Quadrant quadrant = quadrantOf(static_cast<float>(k) / 100.0F);
    for (int i = 0; i < 4; ++i) {
      for (int j = 0; j <= i; ++j) {
        setMirrored(image, i, j, quadrant[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)]);
      }
    }
    image.setTransparentColor(empty);
  }
}

xplImage& TstarImageBinder::getImageOf(int index) {
  if (index < 0 || index >= imageCount) {
    logError().addf("getImageOf out of range>1 :%i", index);
    index = std::clamp(index, 0, imageCount - 1);
  }
  return m_images[static_cast<std::size_t>(index)];
}
