// The table of the moon's craters: names, places and diameters are facts of selenography.
#pragma once

#include <span>

#include "sphere.h"

// How a crater looks when the sun stands behind the observer.
enum class CraterKind {
  worn,    // an old ring: a pale rim and little else
  fresh,   // a bright rim
  bright,  // bright all over, with a halo
};

struct Crater {
  const char* name;
  Place middle;
  double diameter;  // kilometres
  CraterKind kind;
};

// The worn ones.
std::span<const Crater> oldCraters();
// The fresh and the bright ones.
std::span<const Crater> youngCraters();
