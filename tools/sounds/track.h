// A mono sound in the making, and what is done to it as a whole.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

enum class Ending {
  Silent,  // the sound ends; what would ring beyond its end is dropped
  Loops    // what rings beyond the end goes on at the start, as it will be heard when the sound repeats
};

// Samples are amplitudes without a unit until normalize() brings them into (-1, 1).
struct Track {
  int rate;  // samples a second
  Ending ending;
  std::vector<double> samples;

  Track(int aRate, std::size_t length, Ending anEnding) : rate(aRate), ending(anEnding), samples(length) {}

  // A silent track of the same shape.
  Track sibling() const { return {rate, samples.size(), ending}; }

  // Adds to the sample at an index in [0, infinity).
  void add(std::size_t at, double value);

  // The index of a moment in seconds from the start, 0 or more.
  std::size_t indexOf(double seconds) const { return static_cast<std::size_t>(std::lround(seconds * rate)); }

  // Adds another track of the same length, times a factor.
  void mix(const Track& other, double factor);

  // Scales so that the loudest sample has this level, in decibels below full scale (at most 0).
  void normalize(double peakDecibels);

  // The sound brought to a shorter length, to be repeated: what rings beyond the end goes on at the start.
  // Over its last seconds it sinks to the given part of its strength, so that it ends in quiet where it is
  // played once.
  Track settled(std::size_t length, double seconds, double strength) const;

  // Lets the sound come out of silence and go back into it over these seconds.
  void fade(double inSeconds, double outSeconds);
};

// Runs a step over the samples in order, each replaced by what step(sample) gives. A loop is run through once
// before, so that the state of the step at the start is that of the end.
template <class Step>
void process(Track& track, Step step) {
  if (track.ending == Ending::Loops) {
    for (const double sample : track.samples) {
      step(sample);
    }
  }
  for (double& sample : track.samples) {
    sample = step(sample);
  }
}
