// The head of a bitmap file.
#pragma once

#include <string>

// File and info header of an uncompressed bitmap of 8 bits a pixel (256 palette entries, not included, must
// follow) or 24 bits. Rows follow from the bottom, each filled up to a multiple of four bytes.
std::string bitmapHeader(int width, int height, int bitsPerPixel);
