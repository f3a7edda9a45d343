// Filters of the second order, and the noise that is shaped with them.
#pragma once

#include <cstdint>

#include "sounds/track.h"

// Robert Bristow-Johnson's filters (Audio EQ Cookbook). Frequencies in hertz, below half the rate.
class Biquad {
 public:
  static Biquad lowPass(double frequency, double quality, int rate);
  static Biquad highPass(double frequency, double quality, int rate);
  // Passes the middle frequency unchanged.
  static Biquad bandPass(double frequency, double quality, int rate);

  double operator()(double sample);

 private:
  struct Shape {
    double b0;
    double b1;
    double b2;
  };
  Biquad(const Shape& shape, double cosine, double alpha);

  Shape m_in;
  double m_a1;
  double m_a2;
  double m_state1 = 0.0;
  double m_state2 = 0.0;
};

// White noise, the same for the same seed.
class Noise {
 public:
  explicit Noise(std::uint32_t seed) : m_state(seed) {}
  // In [-1, 1).
  double next();

 private:
  std::uint32_t m_state;
};

// A track full of white noise.
void fillWithNoise(Track& track, std::uint32_t seed);
