// What plays the program's sounds: one at a time, without anybody waiting for it.
#pragma once

// Filled by each platform (services/platform.h). All calls come from one thread, and none of them waits for
// the sound system. What cannot be played is silent.
class xpliSoundOutput {
 public:
  virtual ~xpliSoundOutput() = default;

  // Ends the sound that plays, whoever in this process started it.
  virtual void stop() = 0;
  // Ends the sound that plays and starts the WAVE resource of this id, once or over and over.
  virtual void play(int resourceId, bool loop) = 0;
};
