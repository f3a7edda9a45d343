// Draws messages small, collects their bright pixels and places them on the window.
#include "world/messageProjection.h"

#include <algorithm>
#include <limits>

#include "graphics/image.h"
#include "sprites/wholePixel.h"
#include "support/assertion.h"
#include "support/log.h"
#include "support/random.h"

namespace {

constexpr int imageWidth = 300;     // pixels
constexpr int imageHeight = 150;    // pixels
constexpr int brightestDark = 150;  // a pixel with a mean above this becomes a point
constexpr float largestScale = 12.0F;

// The height of a line of such letters at 96 dots per inch.
constexpr int tallestLine = 16;  // pixels

// The rectangle of the bright pixels; without any its edges are the wrong way round.
struct Bounds {
  int minX = imageWidth;
  int minY = imageHeight;
  int maxX = 0;
  int maxY = 0;

  void include(int x, int y) {
    minX = std::min(minX, x);
    minY = std::min(minY, y);
    maxX = std::max(maxX, x);
    maxY = std::max(maxY, y);
  }
};

// Without antialiasing: every pixel of a letter is then fully lit or dark, strokes keep their width, and the
// same font gives the same points everywhere.
xplTextDrawingInfo letterStyle(xplImage& image) {
  xplTextDrawingInfo info;
  info.color = xplColor(255, 255, 255);
  info.fontName = "Courier New";
  info.alignment = xplTextDrawingInfo::alignCentered;
  info.nonAntialiased = 1;
  info.fontSize = messageLetterSize([&](int points) {
    info.fontSize = points;
    int lineHeight = 0;
    image.getTextSize("M", info, nullptr, &lineHeight);
    return lineHeight;
  });
  return info;
}

// Lines are centred under each other; the longest begins at the image's left edge, so that a text that is too
// wide keeps its beginning.
void drawLetters(xplImage& image, const std::string& text) {
  const xplTextDrawingInfo info = letterStyle(image);
  int width = 0;
  image.getTextSize(text, info, &width, nullptr);
  image.drawText(width / 2, 0, text, info);
}

Bounds collectBrightPixels(xplImage& image, std::vector<sTargetPoint>& points) {
  Bounds bounds;
  points.clear();
  for (int y = 0; y < image.getHeight(); ++y) {
    for (int x = 0; x < image.getWidth(); ++x) {
      const xplColor color = image.getPixel(x, y);
      if ((color.red() + color.green() + color.blue()) / 3 > brightestDark) {
        points.push_back({x, y});
        bounds.include(x, y);
      }
    }
  }
  return bounds;
}

// How often the text's extent goes into the window's. An extent of 0 (a single row, column or pixel) does not
// limit the scale.
float ratio(int windowExtent, int textExtent) {
  return textExtent == 0 ? std::numeric_limits<float>::infinity()
                         : static_cast<float>(windowExtent) / static_cast<float>(textExtent);
}

// A random offset in pixels at which an extent of this size begins, between two fractions of the window's.
int randomOffset(int windowExtent, float firstFraction, int extent) {
  const float whole = static_cast<float>(windowExtent);
  const int first = static_cast<int>(firstFraction * whole);
  const int room = static_cast<int>(0.95F * whole) - first - extent;
  const float share = xplRandom::unit();
  return first + static_cast<int>(share * static_cast<float>(room));
}

void placePoints(const Bounds& bounds, const xplRect<int>& screenRect, std::vector<sTargetPoint>& points) {
  const int textWidth = bounds.maxX - bounds.minX;
  const int textHeight = bounds.maxY - bounds.minY;
  const float scale =
      std::min(0.6F * std::min(ratio(screenRect.width, textWidth), ratio(screenRect.height, textHeight)),
               largestScale);
  const int scaledWidth = static_cast<int>(static_cast<float>(textWidth) * scale);
  const int scaledHeight = static_cast<int>(static_cast<float>(textHeight) * scale);
  int offsetX = randomOffset(screenRect.width, 0.05F, scaledWidth);
  int offsetY = randomOffset(screenRect.height, 0.3F, scaledHeight);
  xplAssert(scale != 0.0F, "#2841: xplVector Div by zero.", "xplVector");
  if (scale != 0.0F) {
    offsetX = wholePixel(static_cast<float>(offsetX) / scale);
    offsetY = wholePixel(static_cast<float>(offsetY) / scale);
  }
  const int dx = offsetX - bounds.minX;
  const int dy = offsetY - bounds.minY;
  logInfo().addf("will scale x%.1f, offsetX=%i, offsetY=%i", static_cast<double>(scale), dx, dy);
  for (sTargetPoint& point : points) {
    point.x = static_cast<int>(static_cast<float>(point.x + dx) * scale);
    point.y = static_cast<int>(static_cast<float>(point.y + dy) * scale);
  }
}

}  // namespace

int messageLetterSize(const std::function<int(int)>& lineHeightOf) {
  int points = messageLetterPoints;
  while (points > 1 && lineHeightOf(points) > tallestLine) {
    --points;
  }
  return points;
}

void projectMessage(const std::string& text, const xplRect<int>& screenRect,
                    std::vector<sTargetPoint>& points) {
  logInfo().addf("project(%s)", text.c_str());
  xplImage image;
  image.initWithSizeAndColor(imageWidth, imageHeight, {0, 0, 0});
  drawLetters(image, text);
  const Bounds bounds = collectBrightPixels(image, points);
  placePoints(bounds, screenRect, points);
}
