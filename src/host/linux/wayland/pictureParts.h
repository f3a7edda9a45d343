// Parts of a picture: which of them a surface shows, and how they get there.
#pragma once

#include "graphics/linux/edges.h"
#include "graphics/linux/pixelMemory.h"

// What two parts have in common; empty where that is nothing.
xplEdges commonPart(const xplEdges& one, const xplEdges& other);
bool isEmpty(const xplEdges& part);
bool areSame(const xplEdges& one, const xplEdges& other);

// Copies a part to where its upper left corner comes to lie at (x, y); it must lie in both. The two are not
// the same memory.
void copyPixels(const PixelMemory& from, const xplEdges& part, PixelMemory& to, int x, int y);
