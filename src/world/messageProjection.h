// Turns a text into the points at which stars spell it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "graphics/rect.h"
#include "world/starTransition.h"

// Draws the text small, takes every bright pixel as a point (row by row, left to right), scales the points up
// to the window (its rectangle in its own coordinates) and puts them at a random place in it: never in the
// top 30 % (but for the pixels that are lost where the place is cut to whole pixels of the small text). Two
// random draws. What does not fit into 300 x 150 pixels of text with letters of messageLetterSize() is
// cut at the right and at the bottom. Replaces the points; a text without bright pixels gives none.
void projectMessage(const std::string& text, const xplRect<int>& screenRect,
                    std::vector<sTargetPoint>& points);

inline constexpr int messageLetterPoints = 10;

// The size of a message's letters in points: messageLetterPoints, or as much less (at least 1) as it takes
// where a display has more than 96 dots an inch. There, as many points have more pixels than there are stars
// for. lineHeightOf tells a line's height in pixels for letters of so many points.
int messageLetterSize(const std::function<int(int)>& lineHeightOf);
