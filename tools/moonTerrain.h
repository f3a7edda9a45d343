// The moon's craters and mountains as a map in the view from the Earth: how high the ground is and how pale.
#pragma once

#include <cstddef>
#include <vector>

#include "moonCraterTable.h"
#include "moonRangeTable.h"
#include "moonSeas.h"
#include "sphere.h"

class MoonTerrain {
 public:
  // radius: of the disc in the map, pixels. The map is a square that the disc fills.
  MoonTerrain(int radius, const MoonSeas& seas);
  int side() const { return 2 * m_radius; }
  // Where a pixel of the map lies on the globe; false outside the disc.
  bool pointAt(int x, int y, Vec3& point) const;
  // Added to the ground's brightness.
  double paleAt(int x, int y) const { return m_pale[indexOf(x, y)]; }
  // How steeply the ground falls towards the north-west, where the light of the relief comes from.
  double slopeAt(int x, int y) const;

 private:
  struct Shape {
    Vec3 middle;
    double radius;   // in radii of the globe
    double depth;    // in radii of the crater
    double rim;      // paleness of the rim,
    double floor;    // of the floor
    double blanket;  // and of what was thrown out around it
  };
  std::size_t indexOf(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(side()) + static_cast<std::size_t>(x);
  }
  void add(const Shape& shape);
  void addNamed(const Crater& crater);
  void addUnnamed(const MoonSeas& seas);
  void addRange(const Range& range);
  // Calls paint(index, point) for each pixel of the disc within reach (in radii of the globe) of the middle.
  template <class Paint>
  void around(const Vec3& middle, double reach, Paint paint);

  int m_radius;
  std::vector<double> m_height;  // in radii of the globe
  std::vector<double> m_pale;
};
