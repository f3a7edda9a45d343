// Cubic pieces whose slopes are chosen so that nothing overshoots (Fritsch and Carlson's harmonic mean).
#include "sounds/curve.h"

#include <utility>

Curve::Curve(std::vector<CurvePoint> points) : m_points(std::move(points)), m_slopes(m_points.size(), 0.0) {
  const auto secant = [this](std::size_t i) {
    return (m_points[i + 1].value - m_points[i].value) / (m_points[i + 1].at - m_points[i].at);
  };
  for (std::size_t i = 1; i + 1 < m_points.size(); ++i) {
    const double before = secant(i - 1);
    const double after = secant(i);
    if (before * after > 0.0) {
      m_slopes[i] = 2.0 * before * after / (before + after);
    }
  }
}

double Curve::operator()(double at) const {
  if (at <= m_points.front().at) {
    return m_points.front().value;
  }
  std::size_t i = 0;
  while (i + 1 < m_points.size() && m_points[i + 1].at < at) {
    ++i;
  }
  if (i + 1 == m_points.size()) {
    return m_points.back().value;
  }
  const double width = m_points[i + 1].at - m_points[i].at;
  const double t = (at - m_points[i].at) / width;
  const double s = 1.0 - t;
  return s * s * ((1.0 + 2.0 * t) * m_points[i].value + t * width * m_slopes[i]) +
         t * t * ((1.0 + 2.0 * s) * m_points[i + 1].value - s * width * m_slopes[i + 1]);
}
