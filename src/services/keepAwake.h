// What asks the platform not to put the computer to sleep.
#pragma once

// Filled by each platform (services/platform.h). All calls come from one thread and return within 100
// milliseconds.
class xpliKeepAwake {
 public:
  virtual ~xpliKeepAwake() = default;

  // Asks for the system and its display to stay awake. False where that is refused or cannot be asked. Where
  // the answer takes long it returns true meanwhile, and wasRefused() tells later.
  virtual bool request() = 0;
  // Called once a frame while a request is in force: true, once, where its answer came late and was a
  // refusal.
  virtual bool wasRefused() { return false; }
  // Gives the request back, where the platform holds one.
  virtual void release() = 0;
};
