// Parts of a picture: which of them a surface shows, and how they get there.
#pragma once

#include <algorithm>

#include "graphics/linux/edges.h"
#include "graphics/linux/pixelMemory.h"

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

// Copies a part to where its upper left corner comes to lie at (x, y); it must lie in both. The two are not
// the same memory.
void copyPixels(const PixelMemory& from, const xplEdges& part, PixelMemory& to, int x, int y);
