// Parts of a picture: which of them a surface shows, and how they get there.
#pragma once

#include <span>
#include <vector>

#include "graphics/linux/edges.h"
#include "graphics/linux/pixelMemory.h"

// More parts than these are not told apart any more, but counted as one: naming each costs more than it
// saves.
inline constexpr std::size_t mostParts = 1024;

// What two parts have in common; empty where that is nothing.
xplEdges commonPart(const xplEdges& one, const xplEdges& other);
bool isEmpty(const xplEdges& part);
bool areSame(const xplEdges& one, const xplEdges& other);

// Appends parts. Those that are too many become `all`, alone.
void addParts(std::vector<xplEdges>& parts, std::span<const xplEdges> added, const xplEdges& all);
// Joins parts of the same left and right edge that touch or overlap, one below the other. Changes their
// order.
void joinBelow(std::vector<xplEdges>& parts);

// Copies a part to where its upper left corner comes to lie at (x, y); it must lie in both. The two are not
// the same memory.
void copyPixels(const PixelMemory& from, const xplEdges& part, PixelMemory& to, int x, int y);
