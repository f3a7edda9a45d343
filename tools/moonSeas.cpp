// Floods the moon's low ground.
#include "moonSeas.h"

#include "moonSeaTable.h"

namespace {

constexpr double reserve = 4.0;  // degrees that the frayed shore may lie outside its corners

double lengthOf(const PlanePoint& p) {
  return std::sqrt(p.east * p.east + p.north * p.north);
}

double reachOf(const std::vector<PlanePoint>& corners) {
  double reach = 0.0;
  for (const PlanePoint& corner : corners) {
    reach = std::max(reach, lengthOf(corner));
  }
  return reach + reserve;
}

double distanceToEdge(const PlanePoint& p, const PlanePoint& a, const PlanePoint& b) {
  const PlanePoint edge = {b.east - a.east, b.north - a.north};
  const PlanePoint from = {p.east - a.east, p.north - a.north};
  const double along =
      (from.east * edge.east + from.north * edge.north) / (edge.east * edge.east + edge.north * edge.north);
  const double t = std::clamp(along, 0.0, 1.0);
  return lengthOf({from.east - edge.east * t, from.north - edge.north * t});
}

// Shores are frayed: the point that is looked up is shifted, far by coarse noise and a little by fine noise.
Vec3 frayed(const Vec3& point) {
  const auto shift = [&point](int seed) {
    return 0.026 * solidNoise(point * 7.0, seed) + 0.018 * solidNoise(point * 16.0, seed + 1) +
           0.013 * solidNoise(point * 36.0, seed + 2) + 0.008 * solidNoise(point * 80.0, seed + 3);
  };
  return unit(point + Vec3{shift(11), shift(22), shift(33)});
}

std::vector<PlanePoint> ovalCorners(const SeaOval& oval) {
  constexpr int count = 20;
  std::vector<PlanePoint> corners;
  for (int i = 0; i < count; ++i) {
    const double east = oval.halfWidth * cosineOf(i * 360.0 / count);
    const double north = oval.halfHeight * sineOf(i * 360.0 / count);
    corners.push_back({east * cosineOf(oval.turn) - north * sineOf(oval.turn),
                       east * sineOf(oval.turn) + north * cosineOf(oval.turn)});
  }
  return corners;
}

}  // namespace

MoonSeas::MoonSeas() {
  for (const SeaOutline& sea : seaOutlines()) {
    const TangentPlane plane(sea.middle);
    std::vector<PlanePoint> corners;
    for (const Place& place : sea.shore) {
      corners.push_back(plane.pointOf(onGlobe(place)));
    }
    const double reach = cosineOf(std::min(reachOf(corners), 179.0));
    m_shores.push_back({plane, corners, reach, sea.opacity, sea.albedo, sea.softness});
  }
  for (const SeaOval& oval : seaOvals()) {
    const std::vector<PlanePoint> corners = ovalCorners(oval);
    const double softness = std::min(0.25 * std::min(oval.halfWidth, oval.halfHeight), 0.7);
    m_shores.push_back({TangentPlane(oval.middle), corners, cosineOf(reachOf(corners)), oval.opacity,
                        oval.albedo, softness});
  }
}

// Degrees from the shore, positive on the sea's side.
double MoonSeas::insideOf(const Shore& shore, const PlanePoint& point) {
  double nearest = 1000.0;
  bool inside = false;
  const std::size_t count = shore.corners.size();
  for (std::size_t i = 0, previous = count - 1; i < count; previous = i++) {
    const PlanePoint& a = shore.corners[previous];
    const PlanePoint& b = shore.corners[i];
    nearest = std::min(nearest, distanceToEdge(point, a, b));
    if ((a.north > point.north) != (b.north > point.north) &&
        point.east < (b.east - a.east) * (point.north - a.north) / (b.north - a.north) + a.east) {
      inside = !inside;
    }
  }
  return inside ? nearest : -nearest;
}

SeaTone MoonSeas::toneAt(const Vec3& point) const {
  const Vec3 lookedUp = frayed(point);
  // Hills stand out of the shallows.
  const double islands = 2.2 * fractalNoise(point, 34.0, 3, 0.65, 51);
  SeaTone tone;
  for (const Shore& shore : m_shores) {
    if (shore.plane.cosineTo(lookedUp) < shore.cosineOfReach) {
      continue;
    }
    const double inside =
        insideOf(shore, shore.plane.pointOf(lookedUp)) + islands * std::min(shore.softness, 1.0);
    const double share = shore.opacity * smoothStep(-1.4 * shore.softness, 1.6 * shore.softness, inside);
    if (share <= 0.0) {
      continue;
    }
    // What already is sea takes on the new tone; the rest is flooded.
    const double sea = tone.sea + share * (1.0 - tone.sea);
    tone.albedo =
        sea > 0.0 ? tone.albedo + (shore.albedo - tone.albedo) * std::max(share, 1.0 - tone.sea / sea) : 0.0;
    tone.sea = sea;
  }
  return tone;
}
