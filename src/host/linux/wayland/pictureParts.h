// Parts of a picture: which of them a surface shows, and how they get there.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "graphics/linux/edges.h"
#include "graphics/linux/pixelMemory.h"
#include "graphics/linux/tileChanges.h"

// What two parts have in common; empty where that is nothing. Inline, since it is asked between two copies: a
// call would hand it over through memory, which waits until the first of them has arrived there.
inline xplEdges commonPart(const xplEdges& one, const xplEdges& other) {
  return {std::max(one.left, other.left), std::max(one.top, other.top), std::min(one.right, other.right),
          std::min(one.bottom, other.bottom)};
}
inline bool isEmpty(const xplEdges& part) {
  return part.right <= part.left || part.bottom <= part.top;
}
bool areSame(const xplEdges& one, const xplEdges& other);

// Copies parts of a picture into a buffer that shows a part of it. The two are not the same memory; both are
// borrowed, and stay as large and where they are meanwhile.
class PartCopy {
 public:
  // The buffer's upper left corner lies at (left, top) of the picture, in pixels.
  PartCopy(const PixelMemory& picture, PixelMemory& buffer, int left, int top);

  // A part of the buffer, in its coordinates; what lies beside the picture is left as it is.
  void copy(const xplEdges& part) const;

 private:
  xplEdges m_picture;  // where it lies, in the buffer's coordinates
  const std::uint32_t* m_source;
  std::uint32_t* m_target;
  std::size_t m_sourceStride;  // words
  std::size_t m_targetStride;
};

inline void PartCopy::copy(const xplEdges& part) const {
  const xplEdges common = commonPart(part, m_picture);
  if (isEmpty(common)) {
    return;
  }
  const auto left = static_cast<std::size_t>(common.left - m_picture.left);
  const auto width = static_cast<std::size_t>(common.right - common.left);
  const std::uint32_t* source =
      m_source + static_cast<std::size_t>(common.top - m_picture.top) * m_sourceStride + left;
  std::uint32_t* target = m_target + static_cast<std::size_t>(common.top) * m_targetStride +
                          static_cast<std::size_t>(common.left);
  for (int row = common.top; row < common.bottom; ++row) {
    // Nearly all parts are as wide as a tile: known beforehand, their rows need no call.
    if (width == TileChanges::tileWidth) {
      std::memcpy(target, source, TileChanges::tileWidth * sizeof *target);
    } else {
      std::memcpy(target, source, width * sizeof *target);
    }
    source += m_sourceStride;
    target += m_targetStride;
  }
}
