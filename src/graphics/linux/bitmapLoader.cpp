// Implements the loading of bitmaps by SDL's reader.
#include "graphics/linux/bitmapLoader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <utility>

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

std::uint32_t opaque(std::uint32_t word) {
  return 0xff000000U | word;
}

// The palette's colours as they stand in a surface; numbers that it does not have are black.
std::array<std::uint32_t, 256> wordsOf(const SDL_Palette& palette) {
  std::array<std::uint32_t, 256> words{};
  words.fill(opaque(0));
  const auto count = std::min(words.size(), static_cast<std::size_t>(palette.ncolors));
  for (std::size_t i = 0; i < count; ++i) {
    const SDL_Color& color = palette.colors[i];
    words[i] = opaque((std::uint32_t{color.r} << 16) | (std::uint32_t{color.g} << 8) | color.b);
  }
  return words;
}

// wordOf makes a surface's word of a picture's pixel.
template <std::size_t bytesPerPixel, class WordOf>
void copyPixels(const SDL_Surface& source, Surface& target, WordOf wordOf) {
  for (int y = 0; y < source.h; ++y) {
    const auto* from = static_cast<const std::uint8_t*>(source.pixels) + std::ptrdiff_t{y} * source.pitch;
    std::uint32_t* to = target.pixels() + static_cast<std::size_t>(y) * target.stride();
    for (int x = 0; x < source.w; ++x) {
      std::uint32_t pixel = 0;
      for (std::size_t i = 0; i < bytesPerPixel; ++i) {
        pixel |= std::uint32_t{*from++} << (8 * i);
      }
      to[x] = wordOf(pixel);
    }
  }
}

template <std::size_t bytesPerPixel>
void copyColors(const SDL_Surface& source, Surface& target) {
  const SDL_PixelFormat& format = *source.format;
  if (format.Rmask == 0xff0000 && format.Gmask == 0xff00 && format.Bmask == 0xff) {
    copyPixels<bytesPerPixel>(source, target, opaque);
    return;
  }
  copyPixels<bytesPerPixel>(source, target, [&format](std::uint32_t pixel) {
    return opaque((channelOf(pixel, format.Rmask, format.Rshift, format.Rloss) << 16) |
                  (channelOf(pixel, format.Gmask, format.Gshift, format.Gloss) << 8) |
                  channelOf(pixel, format.Bmask, format.Bshift, format.Bloss));
  });
}

// False for a kind of pixels that no bitmap file has.
bool copyPicture(const SDL_Surface& source, Surface& target) {
  switch (source.format->BytesPerPixel) {
    case 1:
      if (source.format->palette == nullptr) {
        return false;
      }
      copyPixels<1>(source, target,
                    [words = wordsOf(*source.format->palette)](std::uint32_t pixel) { return words[pixel]; });
      return true;
    case 2:
      copyColors<2>(source, target);
      return true;
    case 3:
      copyColors<3>(source, target);
      return true;
    case 4:
      copyColors<4>(source, target);
      return true;
    default:
      return false;
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
    if (!copyPicture(*picture, *surface)) {
      return failure(BitmapError::invalidData);
    }
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
