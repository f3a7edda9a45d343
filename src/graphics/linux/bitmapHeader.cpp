// Implements the reading of bitmap heads.
#include "graphics/linux/bitmapHeader.h"

#include <cstdlib>

namespace {

constexpr std::size_t fileHeaderSize = 14;
constexpr std::uint32_t oldInfoSize = 12;  // with sizes of 16 bits
constexpr std::uint32_t newInfoSize = 40;  // the smallest with sizes of 32 bits
constexpr std::uint32_t maxInfoSize = 256;
constexpr std::uint32_t plain = 0;      // no compression
constexpr std::uint32_t bitFields = 3;  // no compression, channel masks in the header

std::uint32_t readLittleEndian(std::span<const std::uint8_t> bytes, std::size_t place, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    value |= std::uint32_t{bytes[place + i]} << (8 * i);
  }
  return value;
}

bool isAllowedDepth(std::uint32_t bits) {
  return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

bool isAllowedSize(std::int64_t width, std::int64_t height) {
  return width >= 1 && width <= BitmapHeader::maxSide && height >= 1 && height <= BitmapHeader::maxSide &&
         static_cast<std::uint64_t>(width * height) * 4 <= BitmapHeader::maxPixelBytes;
}

// Rows of uncompressed bitmaps are filled up to whole words.
std::uint64_t pixelBytes(const BitmapHeader& header) {
  const auto rowBits =
      static_cast<std::uint64_t>(header.width) * static_cast<std::uint64_t>(header.bitsPerPixel);
  return (rowBits + 31) / 32 * 4 * static_cast<std::uint64_t>(header.height);
}

// What the info block says, before any of it is checked.
struct Info {
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::uint32_t bits = 0;
  std::uint32_t compression = plain;
  std::uint32_t colors = 0;  // of the palette; 0 means all that the depth has
};

Info readOldInfo(std::span<const std::uint8_t> start) {
  return {readLittleEndian(start, 18, 2), readLittleEndian(start, 20, 2), readLittleEndian(start, 24, 2),
          plain};
}

bool hasAllowedPalette(const Info& info) {
  return info.bits > 8 || info.colors <= 256;
}

// A negative height means that the rows go from the top down.
Info readNewInfo(std::span<const std::uint8_t> start) {
  const auto width = static_cast<std::int32_t>(readLittleEndian(start, 18, 4));
  const auto height = static_cast<std::int32_t>(readLittleEndian(start, 22, 4));
  return {width, std::llabs(height), readLittleEndian(start, 28, 2), readLittleEndian(start, 30, 4),
          readLittleEndian(start, 46, 4)};
}

}  // namespace

std::optional<BitmapHeader> parseBitmapHeader(std::span<const std::uint8_t> start, std::uint64_t fileSize) {
  if (start.size() < fileHeaderSize + oldInfoSize || start[0] != 'B' || start[1] != 'M') {
    return std::nullopt;
  }
  const std::uint32_t pixelOffset = readLittleEndian(start, 10, 4);
  const std::uint32_t infoSize = readLittleEndian(start, 14, 4);
  const bool isNew = infoSize >= newInfoSize && infoSize <= maxInfoSize && start.size() >= BitmapHeader::size;
  if ((!isNew && infoSize != oldInfoSize) || pixelOffset >= fileSize) {
    return std::nullopt;
  }
  const Info info = isNew ? readNewInfo(start) : readOldInfo(start);
  if (!isAllowedSize(info.width, info.height) || !isAllowedDepth(info.bits) || !hasAllowedPalette(info)) {
    return std::nullopt;
  }
  const BitmapHeader header{static_cast<std::int32_t>(info.width), static_cast<std::int32_t>(info.height),
                            static_cast<int>(info.bits)};
  const bool isPacked = info.compression != plain && info.compression != bitFields;
  if (!isPacked && fileSize - pixelOffset < pixelBytes(header)) {
    return std::nullopt;
  }
  return header;
}
