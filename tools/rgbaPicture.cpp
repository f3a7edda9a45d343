// Writes and reads picture files.
#include "rgbaPicture.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "bitmapHeader.h"
#include "deflate.h"

namespace {

constexpr std::size_t channels = 4;

std::uint32_t crc32(std::string_view bytes) {
  std::uint32_t crc = 0xffffffffU;
  for (const char byte : bytes) {
    crc ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) {
      crc = (crc >> 1) ^ (0xedb88320U & (0U - (crc & 1U)));
    }
  }
  return ~crc;
}

void appendBigEndian(std::string& bytes, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) {
    bytes += static_cast<char>((value >> shift) & 0xffU);
  }
}

void appendChunk(std::string& bytes, const std::string& type, const std::string& content) {
  appendBigEndian(bytes, static_cast<std::uint32_t>(content.size()));
  bytes += type + content;
  appendBigEndian(bytes, crc32(type + content));
}

int paeth(int left, int above, int corner) {
  const int guess = left + above - corner;
  const int toLeft = std::abs(guess - left);
  const int toAbove = std::abs(guess - above);
  const int toCorner = std::abs(guess - corner);
  if (toLeft <= toAbove && toLeft <= toCorner) {
    return left;
  }
  return toAbove <= toCorner ? above : corner;
}

// A row as differences from what its neighbours foretell; smooth pictures become small numbers.
std::string filteredRow(const std::string& row, const std::string& rowAbove) {
  std::string result(1, '\4');
  for (std::size_t i = 0; i < row.size(); ++i) {
    const auto byteOf = [](const std::string& from, std::size_t at) {
      return static_cast<unsigned char>(from[at]);
    };
    const int left = i >= channels ? byteOf(row, i - channels) : 0;
    const int corner = i >= channels ? byteOf(rowAbove, i - channels) : 0;
    result += static_cast<char>(byteOf(row, i) - paeth(left, byteOf(rowAbove, i), corner));
  }
  return result;
}

std::uint32_t littleEndianAt(const std::string& bytes, std::size_t at, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes.at(at + i))) << (8 * i);
  }
  return value;
}

}  // namespace

void appendLittleEndian(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) {
    bytes += static_cast<char>((value >> (8 * i)) & 0xffU);
  }
}

void writeFile(std::string_view bytes, const std::string& filename) {
  std::ofstream file(filename, std::ios::binary | std::ios::trunc);
  if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
    throw std::runtime_error("cannot write " + filename);
  }
}

std::string pngBytes(const RgbaPicture& picture) {
  std::string header;
  appendBigEndian(header, static_cast<std::uint32_t>(picture.width));
  appendBigEndian(header, static_cast<std::uint32_t>(picture.height));
  header += std::string("\x8\x6\0\0\0", 5);  // 8 bits a channel, with alpha, not interlaced
  std::string rowAbove(static_cast<std::size_t>(picture.width) * channels, '\0');
  std::string rows;
  for (int y = 0; y < picture.height; ++y) {
    std::string row;
    for (int x = 0; x < picture.width; ++x) {
      const Rgba& pixel = picture.at(x, y);
      for (const std::uint8_t channel : {pixel.red, pixel.green, pixel.blue, pixel.alpha}) {
        row += static_cast<char>(channel);
      }
    }
    rows += filteredRow(row, rowAbove);
    rowAbove = row;
  }
  std::string bytes = "\x89PNG\r\n\x1a\n";
  appendChunk(bytes, "IHDR", header);
  appendChunk(bytes, "IDAT", zlibStream(rows));
  appendChunk(bytes, "IEND", "");
  return bytes;
}

void writeBitmap(const RgbaPicture& picture, const std::string& filename) {
  const int padding = (4 - picture.width * 3 % 4) % 4;
  std::string bytes = bitmapHeader(picture.width, picture.height, 24);
  for (int y = picture.height - 1; y >= 0; --y) {
    for (int x = 0; x < picture.width; ++x) {
      const Rgba& pixel = picture.at(x, y);
      for (const std::uint8_t channel : {pixel.blue, pixel.green, pixel.red}) {
        bytes += static_cast<char>(channel);
      }
    }
    bytes.append(static_cast<std::size_t>(padding), '\0');
  }
  writeFile(bytes, filename);
}

RgbaPicture readBitmap(const std::string& filename) {
  std::ifstream file(filename, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (bytes.size() < 54 || bytes.compare(0, 2, "BM") != 0) {
    throw std::runtime_error("not a bitmap file: " + filename);
  }
  const std::size_t bits = littleEndianAt(bytes, 28, 2);
  if (bits != 8 && bits != 24) {
    throw std::runtime_error("neither 8 nor 24 bits a pixel: " + filename);
  }
  RgbaPicture picture(static_cast<int>(littleEndianAt(bytes, 18, 4)),
                      static_cast<int>(littleEndianAt(bytes, 22, 4)));
  const std::size_t offset = littleEndianAt(bytes, 10, 4);
  const std::size_t pixelSize = bits / 8;
  const std::size_t stride = (static_cast<std::size_t>(picture.width) * pixelSize + 3) / 4 * 4;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const std::size_t at = offset + static_cast<std::size_t>(picture.height - 1 - y) * stride +
                             static_cast<std::size_t>(x) * pixelSize;
      const std::size_t color =
          bits == 24 ? at : 54 + 4 * static_cast<std::size_t>(littleEndianAt(bytes, at, 1));
      const std::uint32_t value = littleEndianAt(bytes, color, 3);
      picture.at(x, y) = {static_cast<std::uint8_t>(value >> 16),
                          static_cast<std::uint8_t>((value >> 8) & 0xffU),
                          static_cast<std::uint8_t>(value & 0xffU), 255};
    }
  }
  return picture;
}
