// The eight sounds, each as a finished track.
#pragma once

#include "sounds/track.h"

// A music box plays a tender melody in two voices, in six eighths; D major. 22050 samples a second. Loops.
Track sleepingWithTheOneILove();
// Soft bells: a rising figure and its quieter answer. 11025 samples a second. Loops.
Track sleepReminder();
// A music box rocks a child to sleep, in three quarters; F major. 11025 samples a second. Loops.
Track lullaby();
// One long wave breaks and runs out, a small one follows. 11025 samples a second. Loops.
Track oceanWaves();
// A blackbird and its neighbours on an evening with hardly a breeze. 8000 samples a second. Loops.
Track birds();
// Four bars of a slow blues in A minor: guitar, bass, organ and brushes. 8000 samples a second. Loops.
Track feelingBlue();
// A cuckoo clock's two pipes, once. 8000 samples a second.
Track cuckoo();
// A rooster two farms away, once. 11025 samples a second.
Track rooster();
