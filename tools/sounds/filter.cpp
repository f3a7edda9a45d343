// Filters of the second order and noise.
#include "sounds/filter.h"

#include "sounds/exactMath.h"

namespace {

struct Angle {
  double cosine;
  double alpha;
};

Angle angleOf(double frequency, double quality, int rate) {
  const double turns = frequency / rate;
  return {cosineOfTurns(turns), sineOfTurns(turns) / (2.0 * quality)};
}

}  // namespace

Biquad::Biquad(const Shape& shape, double cosine, double alpha)
    : m_in{shape.b0 / (1.0 + alpha), shape.b1 / (1.0 + alpha), shape.b2 / (1.0 + alpha)},
      m_a1(-2.0 * cosine / (1.0 + alpha)),
      m_a2((1.0 - alpha) / (1.0 + alpha)) {}

Biquad Biquad::lowPass(double frequency, double quality, int rate) {
  const auto [cosine, alpha] = angleOf(frequency, quality, rate);
  return {{(1.0 - cosine) / 2.0, 1.0 - cosine, (1.0 - cosine) / 2.0}, cosine, alpha};
}

Biquad Biquad::highPass(double frequency, double quality, int rate) {
  const auto [cosine, alpha] = angleOf(frequency, quality, rate);
  return {{(1.0 + cosine) / 2.0, -1.0 - cosine, (1.0 + cosine) / 2.0}, cosine, alpha};
}

Biquad Biquad::bandPass(double frequency, double quality, int rate) {
  const auto [cosine, alpha] = angleOf(frequency, quality, rate);
  return {{alpha, 0.0, -alpha}, cosine, alpha};
}

double Biquad::operator()(double sample) {
  const double out = m_in.b0 * sample + m_state1;
  m_state1 = m_in.b1 * sample - m_a1 * out + m_state2;
  m_state2 = m_in.b2 * sample - m_a2 * out;
  return out;
}

double Noise::next() {
  m_state = m_state * 1664525U + 1013904223U;
  std::uint32_t mixed = m_state;
  mixed ^= mixed >> 16;
  mixed *= 0x7feb352dU;
  mixed ^= mixed >> 15;
  return mixed / 2147483648.0 - 1.0;
}

void fillWithNoise(Track& track, std::uint32_t seed) {
  Noise noise(seed);
  for (double& sample : track.samples) {
    sample = noise.next();
  }
}
