// Soft bells with a slow breath in them, for the sleep reminder.
#include <array>

#include "sounds/exactMath.h"
#include "sounds/reverb.h"
#include "sounds/score.h"
#include "sounds/sounds.h"
#include "sounds/tones.h"
#include "sounds/waveFile.h"

namespace {

// A bar tuned so that its overtones are the double octave and, nearly, a tenth above that; struck with felt.
// Twins a little apart give the breath.
constexpr std::array<Partial, 6> bar = {{{1.0, 0.60, 4.2},
                                         {1.0021, 0.36, 4.6},
                                         {2.0, 0.08, 2.0},
                                         {3.99, 0.10, 1.1},
                                         {4.01, 0.04, 1.3},
                                         {9.9, 0.015, 0.25}}};
constexpr double felt = 0.022;  // seconds

// Beats are seconds. E flat, then A flat: a figure that rises and turns back, its answer, and a low bell
// under each.
constexpr std::array<Note, 12> notes = {{
    {0.00, 63, 0.75},
    {0.55, 70, 0.80},
    {1.10, 79, 0.85},
    {1.85, 77, 0.70},  // figure
    {0.00, 51, 0.50},  //
    {3.90, 63, 0.58},
    {4.45, 72, 0.62},
    {5.00, 75, 0.58},
    {5.75, 70, 0.46},
    {6.50, 67, 0.30},  // answer
    {3.90, 44, 0.22},
    {3.90, 56, 0.34},  //
}};

}  // namespace

Track sleepReminder() {
  constexpr int rate = 11025;
  Track track(rate, wholeBlocks(9.4, rate), Ending::Loops);
  for (const Note& note : notes) {
    const double ringing = twoToThe((70.0 - note.key) / 30.0);
    addStruckTone(track, {note.beat, frequencyOf(note.key), note.level, felt, ringing}, bar);
  }
  addRoom(track, {1.5, 1.8, 0.4, 0.5});
  return track;
}
