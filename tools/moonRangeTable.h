// The table of the moon's mountain ranges.
#pragma once

#include <span>

#include "sphere.h"

// A chain of mountains or a scarp along its crest.
struct Range {
  const char* name;
  double width;       // degrees, from the crest to where it ends
  double brightness;  // added to the ground's
  std::span<const Place> crest;
};

std::span<const Range> mountainRanges();
