// How bright the rays of the young craters make the moon's ground.
#pragma once

#include <vector>

#include "moonRayTable.h"
#include "sphere.h"

class MoonRays {
 public:
  MoonRays();
  // The share of fresh, bright ground at a point of the globe, 0 to 1.
  double brightnessAt(const Vec3& point) const;

 private:
  struct Streak {
    PlanePoint direction;  // of length 1
    double length;
    double width;
    double strength;
  };
  struct System {
    TangentPlane plane;
    double cosineOfReach;  // beyond this angle from the middle there is nothing of it
    double radius;         // of the crater, degrees
    double reach;
    double strength;
    double fineness;
    PlanePoint bareSide;  // of length 1, or 0 where rays go everywhere
    int seed;
    std::vector<Streak> streaks;
  };
  static double haloOf(const System& system, const PlanePoint& at, double distance, const Vec3& point);
  static double streaksOf(const System& system, const PlanePoint& at, double distance, const Vec3& point);

  std::vector<System> m_systems;
};
