// Implements the reading of windows: straight into shared memory, or in pieces.
#include "host/linux/x11/windowContent.h"

#include <algorithm>
#include <vector>

#include <xcb/shm.h>

#include "host/linux/x11/sharedPixelMemory.h"

namespace {

constexpr std::uint32_t allPlanes = 0xFFFFFFFF;
constexpr std::uint32_t opaqueBlack = 0xFF000000;
constexpr std::size_t largestPiece = std::size_t{1} << 20;  // bytes

std::uint32_t* rowOf(PixelMemory& memory, int row) {
  return memory.pixels() + static_cast<std::size_t>(row) * memory.stride();
}

void fillWithBlack(PixelMemory& memory) {
  for (int row = 0; row < memory.height(); ++row) {
    std::fill_n(rowOf(memory, row), memory.width(), opaqueBlack);
  }
}

bool readIntoShared(X11Connection& connection, xcb_window_t window, SharedPixelMemory& memory) {
  const auto reply = connection.await<xcb_shm_get_image_reply_t>(
      xcb_shm_get_image(connection.get(), window, 0, 0, static_cast<std::uint16_t>(memory.width()),
                        static_cast<std::uint16_t>(memory.height()), allPlanes, XCB_IMAGE_FORMAT_Z_PIXMAP,
                        memory.segment(), 0));
  if (!reply) {
    return false;
  }
  // The display leaves the highest byte as it likes; ours is 255.
  const std::size_t count =
      static_cast<std::size_t>(memory.width()) * static_cast<std::size_t>(memory.height());
  std::for_each_n(memory.pixels(), count, [](std::uint32_t& pixel) { pixel |= opaqueBlack; });
  return true;
}

bool readPiece(X11Connection& connection, xcb_get_image_cookie_t cookie, const PixelFormat& format,
               PixelMemory& memory, int top, int rows) {
  const auto reply = connection.await<xcb_get_image_reply_t>(cookie);
  const std::size_t rowSize = format.rowSize(memory.width());
  if (!reply || static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) <
                    rowSize * static_cast<std::size_t>(rows)) {
    return false;
  }
  const std::uint8_t* data = xcb_get_image_data(reply.get());
  for (int row = 0; row < rows; ++row) {
    format.convertRowBack(data + static_cast<std::size_t>(row) * rowSize, memory.width(),
                          rowOf(memory, top + row));
  }
  return true;
}

bool readInPieces(X11Connection& connection, xcb_window_t window, const PixelFormat& format,
                  PixelMemory& memory) {
  const std::size_t rowSize = std::max<std::size_t>(format.rowSize(memory.width()), 1);
  const int rows = static_cast<int>(std::clamp<std::size_t>(largestPiece / rowSize, 1, 65535));
  for (int top = 0; top < memory.height(); top += rows) {
    const int count = std::min(rows, memory.height() - top);
    const auto cookie = xcb_get_image(
        connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, static_cast<std::int16_t>(top),
        static_cast<std::uint16_t>(memory.width()), static_cast<std::uint16_t>(count), allPlanes);
    if (!readPiece(connection, cookie, format, memory, top, count)) {
      return false;
    }
  }
  return true;
}

}  // namespace

void copyWindowContent(X11Connection& connection, xcb_window_t window, const PixelFormat& format,
                       PixelMemory& memory) {
  auto* shared = dynamic_cast<SharedPixelMemory*>(&memory);
  const bool isRead = (shared != nullptr && readIntoShared(connection, window, *shared)) ||
                      readInPieces(connection, window, format, memory);
  if (!isRead) {
    fillWithBlack(memory);
  }
}
