// The voice of a music box.
#pragma once

#include <span>

#include "sounds/score.h"
#include "sounds/track.h"

// Plucks the box's teeth as the notes say; a beat has the given seconds.
void playMusicBox(Track& track, std::span<const Note> notes, double beatSeconds);
