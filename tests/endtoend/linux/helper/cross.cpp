// The helper's look at the cross through the middle of the screen, where the old television plays.
#include <algorithm>
#include <array>
#include <chrono>
#include <iostream>

#include "display.h"

namespace {

constexpr std::uint32_t dark = 0x050510;
constexpr std::uint32_t white = 0xFFFFFF;

// How many pixels of a part of the screen have the colour.
long countPixels(const Display& display, int x, int y, int width, int height, std::uint32_t colour) {
  const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(
      display.get(),
      xcb_get_image(display.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, display.screen().root,
                    static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                    static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0xFFFFFFFF),
      nullptr));
  if (!image || image->depth < 24) {
    fail("the display gives no pixels of 24 bits");
  }
  const auto* pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
  return std::count_if(pixels, pixels + static_cast<std::ptrdiff_t>(width) * height,
                       [colour](std::uint32_t pixel) { return (pixel & 0xFFFFFF) == colour; });
}

}  // namespace

int watchCross(const Display& display, const std::string& seconds) {
  const int width = display.screen().width_in_pixels;
  const int height = display.screen().height_in_pixels;
  const auto start = std::chrono::steady_clock::now();
  const auto end = start + std::chrono::seconds(std::stoi(seconds));
  std::array<long, 3> before{-1, -1, -1};
  auto now = start;
  do {
    const long darkInColumn = countPixels(display, width / 2, 0, 1, height, dark);
    const long whiteInRow = countPixels(display, 0, height / 2, width, 1, white);
    const long whiteInColumn = countPixels(display, width / 2, 0, 1, height, white);
    const std::array<long, 3> counts{darkInColumn, whiteInRow, whiteInColumn};
    if (counts != before) {
      std::cout << std::chrono::duration_cast<std::chrono::milliseconds>(now - start).count() << " "
                << counts[0] << " " << counts[1] << " " << counts[2] << std::endl;
      before = counts;
    }
    now = std::chrono::steady_clock::now();
  } while (now < end);
  return 0;
}
