// How a window of the display wants its pixels, and the conversion from and to ours.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include <xcb/xcb.h>

// A picture of true colours as the protocol carries it: rows of whole pixels, padded to some multiple of
// bits.
class PixelFormat {
 public:
  struct Masks {
    std::uint32_t red, green, blue;
  };
  // depth: meaningful bits of a pixel. bitsPerPixel: 8, 16, 24 or 32. rowPadding: in bits, 8, 16 or 32.
  PixelFormat(int depth, int bitsPerPixel, int rowPadding, bool leastByteFirst, const Masks& masks);

  // The format of a visual at a depth; nothing where it has no true colours or is not on offer.
  static std::optional<PixelFormat> find(const xcb_setup_t& setup, xcb_visualid_t visual, int depth);

  int depth() const { return m_depth; }
  // True when a pixel is a word of this machine with blue in the lowest byte, as ours are.
  bool isOurs() const { return m_isOurs; }
  // Bytes of a row of this many pixels, padding included.
  std::size_t rowSize(int width) const;

  // Converts a row of `width` pixels. The bits that no channel uses are set, so that a window with an alpha
  // channel is opaque.
  void convertRow(const std::uint32_t* from, int width, std::uint8_t* to) const;
  // The way back; the highest byte of every pixel becomes 255.
  void convertRowBack(const std::uint8_t* from, int width, std::uint32_t* to) const;

 private:
  // What each value of a channel adds to a pixel.
  using Table = std::array<std::uint32_t, 256>;

  static Table tableOf(std::uint32_t mask);
  int byteOrderShift(int byte) const;

  int m_depth;
  int m_bytes;  // of a pixel
  int m_rowPadding;
  bool m_leastByteFirst;
  bool m_isOurs;
  Masks m_masks;
  std::uint32_t m_unusedBits;
  Table m_red, m_green, m_blue;
};
