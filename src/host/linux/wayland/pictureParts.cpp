// Implements the arithmetic and the copying of parts.
#include "host/linux/wayland/pictureParts.h"

bool areSame(const xplEdges& one, const xplEdges& other) {
  return one.left == other.left && one.top == other.top && one.right == other.right &&
         one.bottom == other.bottom;
}

PartCopy::PartCopy(const PixelMemory& picture, PixelMemory& buffer, int left, int top)
    : m_picture{-left, -top, picture.width() - left, picture.height() - top},
      m_source(picture.pixels()),
      m_target(buffer.pixels()),
      m_sourceStride(picture.stride()),
      m_targetStride(buffer.stride()) {}
