// A music box: tuned steel teeth over a small wooden soundboard, and the two pieces that it plays.
#include "sounds/musicBox.h"

#include <array>

#include "sounds/exactMath.h"
#include "sounds/reverb.h"
#include "sounds/sounds.h"
#include "sounds/tones.h"
#include "sounds/waveFile.h"

namespace {

// A tooth is a bar that is clamped at one end: its overtone lies at 6.27 times the tone and is gone at once.
// The twin beside the tone makes it shimmer; the octave and the twelfth come from the board.
constexpr std::array<Partial, 6> tooth = {{{1.0, 0.72, 2.6},
                                           {1.0017, 0.28, 3.2},
                                           {2.0, 0.15, 1.3},
                                           {3.003, 0.07, 0.8},
                                           {4.01, 0.025, 0.5},
                                           {6.27, 0.05, 0.16}}};
// What the board answers to the pluck itself.
constexpr std::array<Partial, 2> board = {{{1.0, 0.05, 0.18}, {1.74, 0.025, 0.1}}};
constexpr double boardFrequency = 185.0;  // hertz
constexpr double pluck = 0.006;           // seconds

}  // namespace

void playMusicBox(Track& track, std::span<const Note> notes, double beatSeconds) {
  for (const Note& note : notes) {
    const double start = note.beat * beatSeconds;
    // Long teeth ring longer; 76 is the middle of the comb.
    const double ringing = twoToThe((76.0 - note.key) / 26.0);
    addStruckTone(track, {start, frequencyOf(note.key), note.level, pluck, ringing}, tooth);
    addStruckTone(track, {start, boardFrequency, note.level, pluck, 1.0}, board);
  }
}

Track sleepingWithTheOneILove() {
  constexpr int rate = 22050;
  const std::size_t length = wholeBlocks(6.9, rate);
  Track track(rate, 2 * length, Ending::Silent);
  // Beats are eighths, six a bar. Two voices that wander in sixths and thirds and come home together.
  constexpr std::array<Note, 34> notes = {{
      {0, 78, 0.90},  {2, 76, 0.65},    {3, 81, 0.85},    {5, 78, 0.60},   // melody, first bar
      {6, 86, 1.00},  {9, 85, 0.70},    {10, 83, 0.75},   {11, 78, 0.55},  // second
      {12, 79, 0.85}, {14, 83, 0.65},   {15, 81, 0.80},   {17, 76, 0.60},  // third
      {18, 78, 0.72}, {19, 74, 0.66},                                      // fourth
      {6, 78, 0.45},  {9, 76, 0.35},    {12, 71, 0.42},   {15, 73, 0.42},  // second voice
      {0, 62, 0.50},  {1, 69, 0.30},    {3, 66, 0.36},    {4, 69, 0.28},   // D
      {6, 59, 0.50},  {7, 66, 0.30},    {9, 55, 0.45},    {10, 62, 0.28},  // B minor, G
      {12, 64, 0.48}, {13, 67, 0.28},   {15, 57, 0.45},   {16, 67, 0.26},  // E minor, A with its seventh
      {18, 50, 0.50}, {18.3, 57, 0.34}, {18.6, 66, 0.32}, {22, 69, 0.14},  // D, rolled
  }};
  const double beats = 25.5;  // with a breath at the end
  playMusicBox(track, notes, static_cast<double>(length) / rate / beats);
  addRoom(track, {1.0, 1.3, 0.42, 0.5});
  return track.settled(length, 0.9, 0.06);
}

Track lullaby() {
  constexpr int rate = 11025;
  const std::size_t length = wholeBlocks(9.2, rate);
  Track track(rate, 2 * length, Ending::Silent);
  // Beats are quarters, three a bar; the low voice rocks in eighths.
  constexpr std::array<Note, 34> notes = {{
      {0, 81, 0.90}, {1.5, 84, 0.70}, {2, 79, 0.75},                  // melody, first bar
      {3, 81, 0.80}, {3.5, 77, 0.62}, {4, 74, 0.72},                  // second
      {6, 74, 0.62}, {6.5, 77, 0.66}, {7, 82, 0.90},  {8, 79, 0.72},  // third
      {9, 76, 0.66}, {9.5, 77, 0.74},                                 // fourth
      {0, 65, 0.46}, {0.5, 72, 0.26}, {1, 69, 0.30},  {1.5, 72, 0.24},
      {2, 69, 0.28}, {2.5, 72, 0.22},  // F
      {3, 62, 0.46}, {3.5, 69, 0.26}, {4, 65, 0.30},  {4.5, 69, 0.24},
      {5, 65, 0.26}, {5.5, 69, 0.20},  // D minor
      {6, 58, 0.46}, {6.5, 65, 0.26}, {7, 62, 0.30},  {7.5, 60, 0.34},
      {8, 67, 0.26}, {8.5, 64, 0.24},                                  // B flat, C
      {9, 53, 0.46}, {9.5, 60, 0.28}, {10, 69, 0.26}, {11, 72, 0.14},  // F
  }};
  const double beats = 12.0;
  playMusicBox(track, notes, static_cast<double>(length) / rate / beats);
  addRoom(track, {1.0, 1.2, 0.5, 0.45});
  return track.settled(length, 0.9, 0.06);
}
