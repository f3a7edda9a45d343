// Implements the conversion between our pixels and those of a window.
#include "host/linux/x11/pixelFormat.h"

#include <bit>
#include <cstring>

namespace {

bool isTrueColor(const xcb_setup_t& setup, xcb_visualid_t id, int depth, PixelFormat::Masks& masks) {
  for (auto screen = xcb_setup_roots_iterator(&setup); screen.rem > 0; xcb_screen_next(&screen)) {
    for (auto list = xcb_screen_allowed_depths_iterator(screen.data); list.rem > 0; xcb_depth_next(&list)) {
      for (auto visual = xcb_depth_visuals_iterator(list.data); visual.rem > 0;
           xcb_visualtype_next(&visual)) {
        if (visual.data->visual_id == id && list.data->depth == depth) {
          masks = {visual.data->red_mask, visual.data->green_mask, visual.data->blue_mask};
          return visual.data->_class == XCB_VISUAL_CLASS_TRUE_COLOR;
        }
      }
    }
  }
  return false;
}

// The channel's bits of a pixel, stretched to 0..255.
std::uint32_t channelOf(std::uint32_t pixel, std::uint32_t mask) {
  if (mask == 0) {
    return 0;
  }
  const std::uint64_t most = mask >> std::countr_zero(mask);
  const std::uint64_t value = (pixel & mask) >> std::countr_zero(mask);
  return static_cast<std::uint32_t>((value * 255 + most / 2) / most);
}

}  // namespace

PixelFormat::Table PixelFormat::tableOf(std::uint32_t mask) {
  Table table{};
  if (mask == 0) {
    return table;
  }
  const std::uint64_t most = mask >> std::countr_zero(mask);
  for (std::uint64_t value = 0; value < table.size(); ++value) {
    table[value] = static_cast<std::uint32_t>((value * most + 127) / 255) << std::countr_zero(mask);
  }
  return table;
}

PixelFormat::PixelFormat(int depth, int bitsPerPixel, int rowPadding, bool leastByteFirst, const Masks& masks)
    : m_depth(depth),
      m_bytes(bitsPerPixel / 8),
      m_rowPadding(rowPadding),
      m_leastByteFirst(leastByteFirst),
      m_isOurs(bitsPerPixel == 32 && masks.red == 0xFF0000 && masks.green == 0xFF00 && masks.blue == 0xFF &&
               leastByteFirst == (std::endian::native == std::endian::little)),
      m_masks(masks),
      m_unusedBits((depth >= 32 ? 0xFFFFFFFFU : (1U << depth) - 1) & ~(masks.red | masks.green | masks.blue)),
      m_red(tableOf(masks.red)),
      m_green(tableOf(masks.green)),
      m_blue(tableOf(masks.blue)) {}

std::optional<PixelFormat> PixelFormat::find(const xcb_setup_t& setup, xcb_visualid_t visual, int depth) {
  Masks masks{};
  if (!isTrueColor(setup, visual, depth, masks)) {
    return std::nullopt;
  }
  for (auto format = xcb_setup_pixmap_formats_iterator(&setup); format.rem > 0; xcb_format_next(&format)) {
    const int bits = format.data->bits_per_pixel;
    if (format.data->depth == depth && bits >= 8 && bits % 8 == 0) {
      const bool leastByteFirst = setup.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
      return PixelFormat(depth, bits, format.data->scanline_pad, leastByteFirst, masks);
    }
  }
  return std::nullopt;
}

std::size_t PixelFormat::rowSize(int width) const {
  const auto padding = static_cast<std::size_t>(m_rowPadding) / 8;
  const std::size_t bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(m_bytes);
  return (bytes + padding - 1) / padding * padding;
}

int PixelFormat::byteOrderShift(int byte) const {
  return 8 * (m_leastByteFirst ? byte : m_bytes - 1 - byte);
}

void PixelFormat::convertRow(const std::uint32_t* from, int width, std::uint8_t* to) const {
  if (m_isOurs) {
    std::memcpy(to, from, static_cast<std::size_t>(width) * 4);
    return;
  }
  for (int x = 0; x < width; ++x) {
    const std::uint32_t ours = from[x];
    const std::uint32_t pixel =
        m_unusedBits | m_red[(ours >> 16) & 0xFF] | m_green[(ours >> 8) & 0xFF] | m_blue[ours & 0xFF];
    for (int byte = 0; byte < m_bytes; ++byte) {
      *to++ = static_cast<std::uint8_t>(pixel >> byteOrderShift(byte));
    }
  }
}

void PixelFormat::convertRowBack(const std::uint8_t* from, int width, std::uint32_t* to) const {
  for (int x = 0; x < width; ++x) {
    std::uint32_t pixel = 0;
    for (int byte = 0; byte < m_bytes; ++byte) {
      pixel |= static_cast<std::uint32_t>(*from++) << byteOrderShift(byte);
    }
    to[x] = 0xFF000000U | channelOf(pixel, m_masks.red) << 16 | channelOf(pixel, m_masks.green) << 8 |
            channelOf(pixel, m_masks.blue);
  }
}
