// The thread that starts and ends sounds, since a sound system may take its time over either.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <thread>

class SoundWorker {
 public:
  // Starts the thread. Throws std::system_error where there is none to be had.
  SoundWorker();
  // Ends the sound, which is silent at once, and the thread. Sound systems take a tenth of a second or more
  // to close a device, and some never do; nobody waits longer than longestEnd for it. The thread then goes on
  // by itself, until it has ended or the process has; the next worker's first sound waits for it.
  ~SoundWorker();
  SoundWorker(const SoundWorker&) = delete;
  SoundWorker& operator=(const SoundWorker&) = delete;

  // The process's one worker, made by the first who asks and gone with the last who holds it. To be called
  // from one thread.
  static std::shared_ptr<SoundWorker> shared();
  // The same where it lives, else null.
  static std::shared_ptr<SoundWorker> sharedIfAny();

  // Each ends what plays and what was asked for before. They wait for nothing. `wave`, the bytes of a WAVE
  // file, must live as long as the process.
  void play(std::span<const std::uint8_t> wave, bool loop);
  void stop();

  // True when nothing plays and nothing is about to; waits for that, at most so long.
  bool waitUntilSilent(std::chrono::milliseconds longest) const;
  // Why the last sound did not play; empty where it did. Forgets it.
  std::string takeFailure();

  static constexpr std::chrono::milliseconds longestEnd{20};

 private:
  struct Order {
    std::span<const std::uint8_t> wave;  // empty: be silent
    bool loop = false;
  };
  struct State;

  static void work(const std::shared_ptr<State>& state);
  void give(const Order& order);

  std::shared_ptr<State> m_state;  // shared with the thread, which may outlive this object
  std::thread m_thread;
};
