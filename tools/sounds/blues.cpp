// Four bars of a slow blues: guitar over bass, organ and brushes, in twelve eighths.
#include "sounds/blues.h"

#include <array>
#include <cmath>

#include "sounds/reverb.h"
#include "sounds/score.h"
#include "sounds/sounds.h"

namespace {

constexpr int rate = 8000;
constexpr double seconds = 19.6;
constexpr double eighth = seconds / 48.0;  // a third of a beat

// A minor, D minor, F and E, A minor. Beats are eighths, also below.
constexpr std::array<Note, 15> bassLine = {{
    {0, 45, 0.9},
    {3, 48, 0.7},
    {6, 52, 0.8},
    {9, 43, 0.7},  //
    {12, 50, 0.9},
    {15, 53, 0.7},
    {18, 45, 0.8},
    {21, 48, 0.7},  //
    {24, 41, 0.9},
    {27, 45, 0.7},
    {30, 40, 0.9},
    {33, 44, 0.7},  //
    {36, 45, 0.9},
    {39, 40, 0.6},
    {42, 45, 0.7},  //
}};

struct Chord {
  double beat;
  double beats;
  std::array<double, 3> keys;
};
constexpr std::array<Chord, 5> chords = {{{0, 12, {55, 60, 64}},
                                          {12, 12, {53, 60, 62}},
                                          {24, 6, {52, 57, 60}},
                                          {30, 6, {52, 56, 62}},
                                          {36, 11, {52, 57, 60}}}};

// The song of it: bends into the high note of a line, trembles on the long ones.
constexpr std::array<blues::GuitarNote, 23> song = {{
    {2, 1, 64, 0.70, 0.0, 0.0},   {3, 1, 67, 0.75, 0.0, 0.0},    {4, 4, 69, 1.00, -2.0, 0.25},
    {8, 1, 67, 0.75, 0.0, 0.0},   {9, 2, 64, 0.80, 0.0, 0.15},   {11, 1, 62, 0.65, 0.0, 0.0},
    {12, 3, 62, 0.85, 0.0, 0.2},  {15, 1, 60, 0.65, 0.0, 0.0},   {16, 1, 62, 0.70, 0.0, 0.0},
    {17, 2, 65, 0.90, -1.0, 0.2}, {19, 1, 64, 0.75, 0.0, 0.0},   {20, 1, 62, 0.70, 0.0, 0.0},
    {21, 1, 60, 0.65, 0.0, 0.0},  {22, 2, 57, 0.75, 0.0, 0.2},   {25, 2, 60, 0.80, -0.5, 0.2},
    {28, 1, 60, 0.65, 0.0, 0.0},  {29, 1, 62, 0.70, 0.0, 0.0},   {30, 3, 64, 0.95, -1.0, 0.25},
    {33, 1, 62, 0.75, 0.0, 0.0},  {34, 1, 59, 0.70, 0.0, 0.0},   {35, 1, 56, 0.65, 0.0, 0.0},
    {36, 4, 57, 0.85, 0.0, 0.25}, {41, 6, 64, 0.55, -1.0, 0.25},
}};

}  // namespace

Track feelingBlue() {
  Track track(rate, static_cast<std::size_t>(std::lround(seconds * rate)), Ending::Loops);
  for (const blues::GuitarNote& note : song) {
    blues::addGuitar(track, note, eighth);
  }
  for (const Note& note : bassLine) {
    blues::addBass(track, {note.beat, note.key, 0.55 * note.level}, eighth);
  }
  for (const Chord& chord : chords) {
    for (const double key : chord.keys) {
      blues::addOrgan(track, {chord.beat, key, 0.085}, chord.beats, eighth);
    }
  }
  for (double beat = 3.0; beat < 48.0; beat += 6.0) {
    blues::addBrush(track, beat * eighth, 0.05);
  }
  addRoom(track, {1.4, 1.3, 0.45, 0.45});
  return track;
}
