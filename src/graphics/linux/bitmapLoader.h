// Loads bitmap files and the program's own bitmaps into surfaces.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "graphics/linux/surface.h"

// Why a bitmap was not loaded: the numbers that Windows gives for the same failures.
enum class BitmapError : std::uint32_t {
  none = 0,
  cannotOpen = 5,        // ERROR_ACCESS_DENIED
  outOfMemory = 8,       // ERROR_NOT_ENOUGH_MEMORY
  invalidData = 13,      // ERROR_INVALID_DATA
  noSuchResource = 1814  // ERROR_RESOURCE_NAME_NOT_FOUND
};

struct LoadedBitmap {
  std::unique_ptr<Surface> surface;  // null on failure
  BitmapError error = BitmapError::none;
};

LoadedBitmap loadBitmapFile(const std::string& filename);
// The bytes of a whole bitmap file.
LoadedBitmap loadBitmapBytes(std::span<const std::uint8_t> bytes);
LoadedBitmap loadBitmapResource(int id);
