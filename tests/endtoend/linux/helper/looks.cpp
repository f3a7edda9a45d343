// The helper's looks at what a display shows.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <iostream>
#include <map>

#include <spawn.h>
#include <sys/wait.h>
#include <xcb/xfixes.h>

#include "display.h"

namespace {

struct Picture {
  Reply<xcb_get_image_reply_t> image;
  std::size_t pixelBytes;
};

Picture pictureOf(const Display& display, xcb_window_t window, int width, int height) {
  Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(
      display.get(),
      xcb_get_image(display.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, static_cast<std::uint16_t>(width),
                    static_cast<std::uint16_t>(height), 0xFFFFFFFF),
      nullptr));
  if (!image) {
    fail("the display gives no pixels of this window");
  }
  const std::size_t bytes = image->depth > 16 ? 4 : image->depth > 8 ? 2 : 1;
  return {std::move(image), bytes};
}

std::uint32_t firstPixelOf(const Picture& picture) {
  std::uint32_t pixel = 0;
  std::copy_n(xcb_get_image_data(picture.image.get()), picture.pixelBytes,
              reinterpret_cast<std::uint8_t*>(&pixel));
  return pixel;
}

// Everything on the screen becomes this.
void paintRoot(const Display& display, std::uint32_t pixel) {
  const xcb_window_t root = display.screen().root;
  display.check(xcb_change_window_attributes_checked(display.get(), root, XCB_CW_BACK_PIXEL, &pixel),
                "paint");
  display.check(xcb_clear_area_checked(display.get(), 0, root, 0, 0, 0, 0), "clear");
}

}  // namespace

int tellPixels(const Display& display, const std::string& name) {
  const xcb_window_t window = windowOf(display, name);
  const Reply<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(display.get(), xcb_get_geometry(display.get(), window), nullptr));
  if (!geometry) {
    fail("no such window");
  }
  const Picture picture = pictureOf(display, window, geometry->width, geometry->height);
  const std::uint8_t* data = xcb_get_image_data(picture.image.get());
  const auto size = static_cast<std::size_t>(xcb_get_image_data_length(picture.image.get()));
  std::map<std::uint32_t, std::size_t> colours;
  std::uint64_t hash = 14695981039346656037U;
  for (std::size_t i = 0; i + picture.pixelBytes <= size; i += picture.pixelBytes) {
    std::uint32_t pixel = 0;
    std::copy_n(data + i, picture.pixelBytes, reinterpret_cast<std::uint8_t*>(&pixel));
    pixel &= 0xFFFFFF;
    ++colours[pixel];
    hash = (hash ^ pixel) * 1099511628211U;
  }
  std::size_t most = 0;
  for (const auto& [colour, count] : colours) {
    most = std::max(most, count);
  }
  const std::size_t pixels = size / picture.pixelBytes;
  std::cout << std::hex << hash << std::dec << " " << colours.size() << " "
            << (pixels - most) * 1000 / std::max<std::size_t>(pixels, 1) << "\n";
  return 0;
}

int tellCursor(const Display& display) {
  xcb_xfixes_query_version_unchecked(display.get(), 4, 0);
  const Reply<xcb_xfixes_get_cursor_image_reply_t> image(
      xcb_xfixes_get_cursor_image_reply(display.get(), xcb_xfixes_get_cursor_image(display.get()), nullptr));
  if (!image) {
    fail("the display gives no cursor");
  }
  const std::uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(image.get());
  const int count = xcb_xfixes_get_cursor_image_cursor_image_length(image.get());
  const bool isHidden =
      std::all_of(pixels, pixels + count, [](std::uint32_t pixel) { return pixel >> 24 == 0; });
  std::cout << (isHidden ? "hidden" : "visible") << "\n";
  return 0;
}

int tellMasks(const Display& display, const std::string& name) {
  const Reply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
      display.get(), xcb_get_window_attributes(display.get(), windowOf(display, name)), nullptr));
  if (!attributes) {
    fail("no such window");
  }
  std::cout << "0x" << std::hex << attributes->all_event_masks << "\n";
  return 0;
}

int timeFirstFrame(const Display& display, char** command) {
  constexpr std::uint32_t magenta = 0xFF00FF;
  paintRoot(display, magenta);
  const std::uint32_t before = firstPixelOf(pictureOf(display, display.screen().root, 1, 1));
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  if (posix_spawnp(&child, command[0], nullptr, nullptr, command, environ) != 0) {
    fail("cannot start the command");
  }
  const auto limit = start + std::chrono::seconds(10);
  auto now = start;
  bool changed = false;
  while (!changed && now < limit) {
    changed = firstPixelOf(pictureOf(display, display.screen().root, 1, 1)) != before;
    now = std::chrono::steady_clock::now();
  }
  kill(child, SIGTERM);
  int status = 0;
  waitpid(child, &status, 0);
  if (!changed) {
    fail("the screen did not change");
  }
  std::cout << std::chrono::duration_cast<std::chrono::milliseconds>(now - start).count() << "\n";
  return 0;
}
