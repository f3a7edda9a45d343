// Sine and powers of two from their series.
#include "sounds/exactMath.h"

#include <cmath>

double sineOfTurns(double turns) {
  double t = turns - std::floor(turns);  // [0, 1)
  if (t > 0.75) {
    t -= 1.0;
  } else if (t > 0.25) {
    t = 0.5 - t;
  }
  const double x = t * 6.283185307179586;  // [-pi/2, pi/2]
  const double x2 = x * x;
  // Taylor's series to the fifteenth power, innermost factor first.
  double sum = 1.0;
  for (int n = 14; n >= 2; n -= 2) {
    sum = 1.0 - sum * x2 / (n * (n + 1));
  }
  return x * sum;
}

double cosineOfTurns(double turns) {
  return sineOfTurns(turns + 0.25);
}

double twoToThe(double x) {
  const double whole = std::floor(x);
  const double y = (x - whole) * 0.6931471805599453;
  double sum = 1.0;
  for (int n = 18; n >= 1; --n) {
    sum = 1.0 + sum * y / n;
  }
  return std::ldexp(sum, static_cast<int>(whole));  // exact on every machine
}

double amplitudeOf(double decibels) {
  return twoToThe(decibels * 0.16609640474436813);  // log2(10) / 20
}

double frequencyOf(double key) {
  return 440.0 * twoToThe((key - 69.0) / 12.0);
}

double decayFactor(double secondsTo60dB, int rate) {
  return amplitudeOf(-60.0 / (secondsTo60dB * rate));
}
