// Turns a text into the points at which stars spell it.
#pragma once

#include <string>
#include <vector>

#include "graphics/rect.h"
#include "world/starTransition.h"

// Draws the text small, takes every bright pixel as a point (row by row, left to right), scales the points up
// to the window (its rectangle in its own coordinates) and puts them at a random place in it: never in the
// top 30 %. Two random draws. What does not fit into 300 x 150 pixels of text with letters of 10 points is
// cut at the right and at the bottom. Replaces the points; a text without bright pixels gives none.
void projectMessage(const std::string& text, const xplRect<int>& screenRect,
                    std::vector<sTargetPoint>& points);
