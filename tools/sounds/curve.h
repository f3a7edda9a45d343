// A smooth line through given points: how a pitch or a loudness changes over time.
#pragma once

#include <vector>

struct CurvePoint {
  double at;  // seconds, rising from point to point
  double value;
};

class Curve {
 public:
  // At least one point. Between two points the line never leaves the range of their values.
  explicit Curve(std::vector<CurvePoint> points);
  // Before the first point and behind the last the line is level.
  double operator()(double at) const;
  // Seconds of the last point.
  double end() const { return m_points.back().at; }

 private:
  std::vector<CurvePoint> m_points;
  std::vector<double> m_slopes;  // at each point, value a second
};
