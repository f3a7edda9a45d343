// The full moon at high resolution, as it is seen from the Earth, north up.
#pragma once

#include <cstddef>
#include <vector>

#include "moonRays.h"
#include "moonSeas.h"
#include "moonTerrain.h"
#include "skyColor.h"

// A square that the disc fills; outside the disc it is black.
class MoonMap {
 public:
  // radius: of the disc, pixels.
  explicit MoonMap(int radius);
  int radius() const { return m_radius; }
  const SkyColor& at(int x, int y) const {
    return m_colors[static_cast<std::size_t>(y) * static_cast<std::size_t>(2 * m_radius) +
                    static_cast<std::size_t>(x)];
  }

 private:
  SkyColor colorAt(const MoonTerrain& terrain, int x, int y) const;

  int m_radius;
  MoonSeas m_seas;
  MoonRays m_rays;
  std::vector<SkyColor> m_colors;
};
