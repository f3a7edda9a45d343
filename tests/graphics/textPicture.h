// What the tests of text share: a black picture that texts are drawn on and measured by.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "graphics/image.h"

inline constexpr xplColor black(0, 0, 0);
inline constexpr xplColor white(255, 255, 255);
inline constexpr int left = xplTextDrawingInfo::alignLeft;
inline constexpr int centered = xplTextDrawingInfo::alignCentered;
inline constexpr int right = xplTextDrawingInfo::alignRight;

inline const std::string sampleText = "Hydra, Vega &\nx=7";

// A picture that texts are drawn on, and by whose target they are measured.
class TextPicture : public xplImage {
 public:
  TextPicture(int width, int height) { initWithSizeAndColor(width, height, black); }

  std::pair<int, int> sizeOf(const std::string& text, const xplTextDrawingInfo& info) {
    int width = -1;
    int height = -1;
    tools().getTextSize(text, info, &width, &height);
    return {width, height};
  }

  // FNV-1a over all pixels, row by row.
  std::uint64_t hash() {
    std::uint64_t value = 0xcbf29ce484222325U;
    forEachPixel([&value](xplColor color) { value = (value ^ color.value()) * 0x100000001b3U; });
    return value;
  }

  int countOf(xplColor wanted) {
    int count = 0;
    forEachPixel([&count, wanted](xplColor color) { count += color == wanted ? 1 : 0; });
    return count;
  }

  // A line of text for each row: '#' where the pixel is white, '.' where it is black, '?' elsewhere.
  std::vector<std::string> rows() {
    std::vector<std::string> result;
    for (int y = 0; y < getHeight(); ++y) {
      std::string& row = result.emplace_back();
      for (int x = 0; x < getWidth(); ++x) {
        const xplColor color = getPixel(x, y);
        row += color == white ? '#' : color == black ? '.' : '?';
      }
    }
    return result;
  }

 private:
  template <class Visit>
  void forEachPixel(Visit visit) {
    for (int y = 0; y < getHeight(); ++y) {
      for (int x = 0; x < getWidth(); ++x) {
        visit(getPixel(x, y));
      }
    }
  }
};

// One-bit text in white.
inline xplTextDrawingInfo plain(const std::string& face, int points, int alignment = left) {
  xplTextDrawingInfo info;
  info.color = white;
  info.fontName = face;
  info.fontSize = points;
  info.alignment = alignment;
  info.nonAntialiased = 1;
  return info;
}

inline std::uint64_t hashOf(int x, const std::string& text, const xplTextDrawingInfo& info) {
  TextPicture canvas(520, 160);
  canvas.drawText(x, 5, text, info);
  return canvas.hash();
}
