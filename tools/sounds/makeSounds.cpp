// Makes the eight sounds of the program.
// Usage: make_sounds FOLDER
#include <array>
#include <cstdio>
#include <exception>
#include <string>

#include "sounds/filter.h"
#include "sounds/sounds.h"
#include "sounds/waveFile.h"

namespace {

struct Sound {
  const char* name;
  Track (*make)();
  double peak;  // decibels below full scale, chosen so that all are about equally loud
  void (*write)(const Track&, const std::string&);
};

constexpr std::array<Sound, 8> sounds = {{
    {"sleeping-with-the-one-i-love", sleepingWithTheOneILove, -5.6, writeAdpcm},
    {"sleep-reminder", sleepReminder, -6.0, writeAdpcm},
    {"lullaby", lullaby, -6.0, writeAdpcm},
    {"ocean-waves", oceanWaves, -3.5, writeAdpcm},
    {"birds", birds, -10.2, writePcm8},
    {"feeling-blue", feelingBlue, -4.0, writePcm8},
    {"cuckoo", cuckoo, -10.0, writePcm8},
    {"rooster", rooster, -10.0, writePcm8},
}};

void make(const Sound& sound, const std::string& folder) {
  constexpr double lowestHeard = 35.0;  // hertz; below it there is only unrest for the loudspeaker
  Track track = sound.make();
  process(track, Biquad::highPass(lowestHeard, 0.7, track.rate));
  track.normalize(sound.peak);
  sound.write(track, folder + "/" + sound.name + ".wav");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_sounds FOLDER\n", stderr);
    return 1;
  }
  try {
    for (const Sound& sound : sounds) {
      make(sound, argv[1]);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_sounds: %s\n", error.what());
    return 1;
  }
  return 0;
}
