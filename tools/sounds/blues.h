// The players of the blues.
#pragma once

#include "sounds/score.h"
#include "sounds/track.h"

namespace blues {

struct GuitarNote {
  double beat;
  double beats;
  double key;
  double level;
  double bendFrom;  // semitones: the string starts so far from the key and is bent to it
  double tremble;   // semitones to each side, once the note has stood for a while
};

// Beats have the given seconds.
void addGuitar(Track& track, const GuitarNote& note, double beatSeconds);
void addBass(Track& track, const Note& note, double beatSeconds);
void addOrgan(Track& track, const Note& note, double beats, double beatSeconds);
// A brush over the snare.
void addBrush(Track& track, double start, double level);

}  // namespace blues
