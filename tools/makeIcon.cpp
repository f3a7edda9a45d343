// Makes the program's icon: lunaria.ico for Windows, icons/lunaria-N.png for Linux.
// Usage: make_icon FOLDER
#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "iconArt.h"

namespace {

constexpr std::array<int, 7> sizes = {16, 24, 32, 48, 64, 128, 256};
// From this size on an icon file holds a PNG.
constexpr int firstPngSize = 256;

// One picture as an icon file holds it: a bitmap with alpha, twice as high as the picture because a mask
// follows it.
std::string iconBitmap(const RgbaPicture& picture) {
  const auto side = static_cast<std::uint32_t>(picture.width);
  const std::uint32_t maskStride = (side + 31U) / 32U * 4U;
  std::string bytes;
  appendLittleEndian(bytes, 40, 4);
  appendLittleEndian(bytes, side, 4);
  appendLittleEndian(bytes, side * 2, 4);
  appendLittleEndian(bytes, 1, 2);   // planes
  appendLittleEndian(bytes, 32, 2);  // bits a pixel
  appendLittleEndian(bytes, 0, 4);   // no compression
  appendLittleEndian(bytes, side * side * 4 + maskStride * side, 4);
  for (int i = 0; i < 4; ++i) {
    appendLittleEndian(bytes, 0, 4);  // resolution and colour counts: not used
  }
  std::string mask;
  for (int y = picture.height - 1; y >= 0; --y) {
    std::string row(maskStride, '\0');
    for (int x = 0; x < picture.width; ++x) {
      const Rgba& pixel = picture.at(x, y);
      for (const std::uint8_t channel : {pixel.blue, pixel.green, pixel.red, pixel.alpha}) {
        bytes += static_cast<char>(channel);
      }
      if (pixel.alpha < 128) {
        char& eight = row[static_cast<std::size_t>(x / 8)];
        eight = static_cast<char>(static_cast<unsigned char>(eight) | (0x80U >> (x % 8)));
      }
    }
    mask += row;
  }
  return bytes + mask;
}

std::string iconFile(const std::vector<RgbaPicture>& pictures) {
  std::string directory;
  appendLittleEndian(directory, 0, 2);
  appendLittleEndian(directory, 1, 2);  // an icon, not a pointer
  appendLittleEndian(directory, static_cast<std::uint32_t>(pictures.size()), 2);
  const std::size_t directorySize = 6 + 16 * pictures.size();
  std::string contents;
  for (const RgbaPicture& picture : pictures) {
    const std::string content = picture.width >= firstPngSize ? pngBytes(picture) : iconBitmap(picture);
    const std::uint32_t side = static_cast<std::uint32_t>(picture.width) % 256U;  // 0 means 256
    appendLittleEndian(directory, side, 1);
    appendLittleEndian(directory, side, 1);
    appendLittleEndian(directory, 0, 2);  // no palette
    appendLittleEndian(directory, 1, 2);
    appendLittleEndian(directory, 32, 2);
    appendLittleEndian(directory, static_cast<std::uint32_t>(content.size()), 4);
    appendLittleEndian(directory, static_cast<std::uint32_t>(directorySize + contents.size()), 4);
    contents += content;
  }
  return directory + contents;
}

void makeIcons(const std::string& folder) {
  std::filesystem::create_directories(folder + "/icons");
  std::vector<RgbaPicture> pictures;
  for (const int size : sizes) {
    pictures.push_back(drawIcon(size));
    writeFile(pngBytes(pictures.back()), folder + "/icons/lunaria-" + std::to_string(size) + ".png");
  }
  writeFile(iconFile(pictures), folder + "/lunaria.ico");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_icon FOLDER\n", stderr);
    return 1;
  }
  try {
    makeIcons(argv[1]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_icon: %s\n", error.what());
    return 1;
  }
  return 0;
}
