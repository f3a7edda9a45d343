// The table of the moon's bright rays: what young craters threw over the ground around them.
#pragma once

#include <span>

#include "sphere.h"

// One ray, straight away from its crater.
struct RayStreak {
  double azimuth;   // degrees from north over east
  double length;    // degrees along the surface from the crater's middle
  double width;     // degrees, half of it, at its middle
  double strength;  // 0 to 1
};

// A crater with its halo of fine rays and the few long ones that are seen alone.
struct RaySystem {
  const char* name;
  Place middle;
  double diameter;  // kilometres, of the crater
  double reach;     // degrees to where the halo ends
  double strength;  // of the halo, 0 to 1
  double fineness;  // how many fine rays: lattice cells around the crater
  // The side to which nothing was thrown: degrees from north over east; negative where there is none.
  double bareAzimuth;
  std::span<const RayStreak> streaks;
};

std::span<const RaySystem> raySystems();
