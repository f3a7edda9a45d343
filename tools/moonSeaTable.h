// The table of the moon's dark ground: places, sizes and outlines are facts of selenography.
#pragma once

#include <span>
#include <vector>

#include "sphere.h"

// A sea whose shore is irregular: its corners, clockwise or not.
struct SeaOutline {
  const char* name;
  Place middle;
  double opacity;  // 1 is wholly flooded
  double albedo;
  double softness;  // degrees
  std::vector<Place> shore;
};

// A small sea, a lake or a dark crater floor: an ellipse.
struct SeaOval {
  const char* name;
  Place middle;
  double halfWidth;   // degrees, before it is turned
  double halfHeight;  // degrees
  double turn;        // degrees counter-clockwise
  double opacity;
  double albedo;
};

std::span<const SeaOutline> seaOutlines();
std::span<const SeaOval> seaOvals();
