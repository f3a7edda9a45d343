// Builds stb_image_write into this unit and wraps it.
#include "render/stbImageWrite.h"

#include <stdexcept>

// The library's own code is not held to our warnings.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast"
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wcast-qual"
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#pragma GCC diagnostic ignored "-Wnull-dereference"
#define STB_IMAGE_WRITE_STATIC
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STBI_WRITE_NO_STDIO
#include <stb_image_write.h>
#pragma GCC diagnostic pop

namespace {

void append(void* context, void* data, int size) {
  auto& bytes = *static_cast<std::vector<std::uint8_t>*>(context);
  const auto* first = static_cast<const std::uint8_t*>(data);
  bytes.insert(bytes.end(), first, first + size);
}

}  // namespace

std::vector<std::uint8_t> encodePng(int width, int height, const std::vector<std::uint8_t>& rgb) {
  std::vector<std::uint8_t> png;
  if (stbi_write_png_to_func(append, &png, width, height, 3, rgb.data(), width * 3) == 0) {
    throw std::runtime_error("the picture could not be encoded");
  }
  return png;
}
