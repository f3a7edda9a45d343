// Writes 8-bit bitmap files.
#include "indexedBitmap.h"

#include "bitmapHeader.h"
#include "rgbaPicture.h"

void writeBitmap(const IndexedBitmap& bitmap, const std::string& filename) {
  std::string bytes = bitmapHeader(bitmap.width, bitmap.height, 8);
  for (const Rgb& color : bitmap.palette) {
    appendLittleEndian(bytes, color.blue, 1);
    appendLittleEndian(bytes, color.green, 1);
    appendLittleEndian(bytes, color.red, 1);
    appendLittleEndian(bytes, 0, 1);
  }
  const auto width = static_cast<std::ptrdiff_t>(bitmap.width);
  for (std::ptrdiff_t y = bitmap.height - 1; y >= 0; --y) {
    bytes.append(bitmap.pixels.begin() + y * width, bitmap.pixels.begin() + (y + 1) * width);
    bytes.append(static_cast<std::size_t>((4 - width % 4) % 4), '\0');
  }
  writeFile(bytes, filename);
}
