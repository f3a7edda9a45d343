// Implements the loading of bitmaps by SDL's reader.
#include "graphics/linux/bitmapLoader.h"

#include <array>
#include <new>
#include <optional>

#include <SDL_endian.h>
#include <SDL_rwops.h>
#include <SDL_surface.h>

#include "graphics/linux/bitmapHeader.h"
#include "support/linux/resources.h"

namespace {

struct StreamCloser {
  void operator()(SDL_RWops* stream) const { SDL_RWclose(stream); }
};
using Stream = std::unique_ptr<SDL_RWops, StreamCloser>;

struct SurfaceFreer {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using SdlSurface = std::unique_ptr<SDL_Surface, SurfaceFreer>;

LoadedBitmap failure(BitmapError error) {
  return {nullptr, error};
}

// Looks at the head of the stream and goes back to its start.
bool isLoadable(SDL_RWops& stream) {
  std::array<std::uint8_t, BitmapHeader::size> start{};
  const Sint64 fileSize = SDL_RWsize(&stream);
  const std::size_t count = SDL_RWread(&stream, start.data(), 1, start.size());
  return fileSize > 0 &&
         parseBitmapHeader(std::span(start).first(count), static_cast<std::uint64_t>(fileSize)).has_value() &&
         SDL_RWseek(&stream, 0, RW_SEEK_SET) == 0;
}

// A channel of fewer than 8 bits is widened by repeating its highest bits, as GDI does.
std::uint32_t channelOf(std::uint32_t pixel, std::uint32_t mask, unsigned shift, unsigned missingBits) {
  if (mask == 0) {
    return 0;
  }
  const unsigned bits = 8 - missingBits;
  std::uint32_t value = ((pixel & mask) >> shift) << missingBits;
  for (unsigned filled = bits; filled < 8; filled += bits) {
    value |= value >> filled;
  }
  return value & 0xff;
}

std::uint32_t colorOf(std::uint32_t pixel, const SDL_PixelFormat& format) {
  if (format.palette != nullptr) {
    if (pixel >= static_cast<std::uint32_t>(format.palette->ncolors)) {
      return 0xff000000U;
    }
    const SDL_Color& color = format.palette->colors[pixel];
    return 0xff000000U | (std::uint32_t{color.r} << 16) | (std::uint32_t{color.g} << 8) | color.b;
  }
  return 0xff000000U | (channelOf(pixel, format.Rmask, format.Rshift, format.Rloss) << 16) |
         (channelOf(pixel, format.Gmask, format.Gshift, format.Gloss) << 8) |
         channelOf(pixel, format.Bmask, format.Bshift, format.Bloss);
}

void copyPixels(const SDL_Surface& source, Surface& target) {
  const auto bytesPerPixel = static_cast<std::size_t>(source.format->BytesPerPixel);
  for (int y = 0; y < source.h; ++y) {
    const auto* from = static_cast<const std::uint8_t*>(source.pixels) + std::ptrdiff_t{y} * source.pitch;
    std::uint32_t* to = target.pixels() + static_cast<std::size_t>(y) * target.stride();
    for (int x = 0; x < source.w; ++x) {
      std::uint32_t pixel = 0;
      for (std::size_t i = 0; i < bytesPerPixel; ++i) {
        pixel |= std::uint32_t{*from++} << (8 * i);
      }
      to[x] = colorOf(pixel, *source.format);
    }
  }
}

LoadedBitmap load(Stream stream) {
  if (!isLoadable(*stream)) {
    return failure(BitmapError::invalidData);
  }
  const SdlSurface picture(SDL_LoadBMP_RW(stream.get(), 0));
  if (!picture) {
    return failure(BitmapError::invalidData);
  }
  try {
    auto surface = std::make_unique<Surface>(picture->w, picture->h);
    copyPixels(*picture, *surface);
    return {std::move(surface), BitmapError::none};
  } catch (const std::bad_alloc&) {
    return failure(BitmapError::outOfMemory);
  }
}

}  // namespace

static_assert(SDL_BYTEORDER == SDL_LIL_ENDIAN, "the words of a picture in memory are read byte by byte");

LoadedBitmap loadBitmapFile(const std::string& filename) {
  Stream stream(SDL_RWFromFile(filename.c_str(), "rb"));
  return stream ? load(std::move(stream)) : failure(BitmapError::cannotOpen);
}

LoadedBitmap loadBitmapBytes(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t maxBytes = BitmapHeader::maxPixelBytes + 4096;
  if (bytes.empty() || bytes.size() > maxBytes) {
    return failure(BitmapError::invalidData);
  }
  Stream stream(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())));
  return stream ? load(std::move(stream)) : failure(BitmapError::outOfMemory);
}

LoadedBitmap loadBitmapResource(int id) {
  const auto bytes = findResource("bitmap", id);
  return bytes ? loadBitmapBytes(*bytes) : failure(BitmapError::noSuchResource);
}
