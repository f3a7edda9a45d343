// Music written down as notes.
#pragma once

struct Note {
  double beat;   // from the start, in the unit of the piece
  double key;    // semitones as MIDI counts them: 60 is the middle C
  double level;  // amplitude
};
