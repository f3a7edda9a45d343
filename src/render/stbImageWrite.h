// PNG encoding, by the stb_image_write library.
#pragma once

#include <cstdint>
#include <vector>

// The bytes of a PNG file of width x height pixels, three bytes (red, green, blue) each, row by row from the
// top. Throws std::runtime_error where the library fails.
std::vector<std::uint8_t> encodePng(int width, int height, const std::vector<std::uint8_t>& rgb);
