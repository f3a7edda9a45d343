// Where the moon is dark: its seas, bays, lakes and the craters with dark floors.
#pragma once

#include <vector>

#include "sphere.h"

struct SeaTone {
  double sea = 0.0;     // how much of the ground is sea, 0 to 1
  double albedo = 0.0;  // of the sea there, as a fraction of white
};

class MoonSeas {
 public:
  MoonSeas();
  // How dark the seas are at a point of the globe.
  SeaTone toneAt(const Vec3& point) const;

 private:
  struct Shore {
    TangentPlane plane;
    std::vector<PlanePoint> corners;
    double cosineOfReach;  // beyond this angle from the middle there is nothing of it
    double opacity;
    double albedo;
    double softness;  // half the width of the shore, degrees
  };
  static double insideOf(const Shore& shore, const PlanePoint& point);

  std::vector<Shore> m_shores;
};
