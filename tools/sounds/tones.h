// Tones built of partials: struck ones that ring out, and sung ones that follow lines of pitch and loudness.
#pragma once

#include <functional>
#include <span>

#include "sounds/curve.h"
#include "sounds/track.h"

// One of the sines that a tone consists of.
struct Partial {
  double ratio;    // to the frequency of the tone
  double level;    // amplitude
  double seconds;  // until it has fallen by 60 decibels
};

struct Strike {
  double start;      // seconds
  double frequency;  // hertz
  double level;      // amplitude
  double attack;     // seconds until the tone is there
  double ringing;    // factor for the partials' seconds
};

// A tone that is struck once and rings out, each partial for as long as it does.
void addStruckTone(Track& track, const Strike& strike, std::span<const Partial> partials);

// How much of a partial is kept, by its frequency: all of it up to the upper reaches of what the rate can
// hold, nothing where it would come back as a false tone.
double keptAt(double frequency, int rate);

// A tone that follows its lines. Partials' seconds are not used.
struct SungTone {
  double start;                             // seconds
  std::function<double(double)> frequency;  // hertz at a moment in seconds of the tone
  Curve level;                              // amplitude; the tone ends where this line ends
  std::span<const Partial> partials;
};
void addSungTone(Track& track, const SungTone& tone);
