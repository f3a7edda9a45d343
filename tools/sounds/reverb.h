// A small room around a sound.
#pragma once

#include "sounds/track.h"

struct Room {
  double size;        // 1 is a bedroom; the delays grow with it
  double seconds;     // until the echo has fallen by 60 decibels
  double brightness;  // (0, 1]: how much of the highs each reflection keeps
  double level;       // of the echo beside the sound itself
};

// Adds the room's echo to the sound; in a loop, also the echo of its end to its start.
void addRoom(Track& track, const Room& room);
