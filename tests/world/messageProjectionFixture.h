// What the tests of projected messages share: the points of a text, and how far they reach.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "world/messageProjection.h"

inline const xplRect<int> fullHd(0, 0, 1920, 1080);

struct Extent {
  int minX = 1 << 30;
  int minY = 1 << 30;
  int maxX = -(1 << 30);
  int maxY = -(1 << 30);
  int width() const { return maxX - minX; }
  int height() const { return maxY - minY; }
};

class MessageProjection : public PrivateFolders {
 protected:
  std::vector<sTargetPoint> project(const std::string& text, const xplRect<int>& screen = fullHd) {
    std::vector<sTargetPoint> points = {{1, 1}, {2, 2}};
    projectMessage(text, screen, points);
    return points;
  }

  static Extent extentOf(const std::vector<sTargetPoint>& points) {
    Extent extent;
    for (const sTargetPoint& point : points) {
      extent.minX = std::min(extent.minX, point.x);
      extent.minY = std::min(extent.minY, point.y);
      extent.maxX = std::max(extent.maxX, point.x);
      extent.maxY = std::max(extent.maxY, point.y);
    }
    return extent;
  }
};
