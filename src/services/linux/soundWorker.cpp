// Implements the thread that starts and ends sounds.
#include "services/linux/soundWorker.h"

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

#include "services/linux/sdlSound.h"
#include "support/log.h"

struct SoundWorker::State {
  std::mutex mutex;
  std::condition_variable changed;
  std::optional<Order> order;  // the last one given, until the thread takes it
  bool soundIsOver = false;    // the one that plays has come to its end
  bool isSilent = true;
  bool isStarting = false;  // the thread waits for the sound system to take a sound
  bool shallEnd = false;
  bool hasEnded = false;
  std::string failure;
};

namespace {

// How long a sound waits for the worker before it. The sound system ends one in a tenth of a second or two.
constexpr std::chrono::milliseconds patience{2000};

// The sound system, which takes one sound at a time. A worker that was left behind holds it until its sound
// has ended, and for good where it never does.
class SoundSystem {
 public:
  // False where another worker still holds it after `patience`.
  bool take() {
    std::unique_lock lock(m_mutex);
    const bool isFree = m_freed.wait_for(lock, patience, [this] { return !m_isTaken; });
    m_isTaken = true;
    return isFree;
  }
  void giveBack() {
    const std::lock_guard lock(m_mutex);
    m_isTaken = false;
    m_freed.notify_one();
  }

 private:
  std::mutex m_mutex;
  std::condition_variable m_freed;
  bool m_isTaken = false;
};

std::shared_ptr<SoundSystem> soundSystem() {
  static const auto system = std::make_shared<SoundSystem>();
  return system;
}

std::weak_ptr<SoundWorker>& current() {
  static std::weak_ptr<SoundWorker> worker;
  return worker;
}

// What a worker's thread plays.
class ThreadsSound {
 public:
  ThreadsSound() = default;
  ~ThreadsSound() {
    end();
    if (m_holdsSystem) {
      m_system->giveBack();
    }
  }
  ThreadsSound(const ThreadsSound&) = delete;
  ThreadsSound& operator=(const ThreadsSound&) = delete;

  bool isSilent() const { return !m_sound; }
  void end() { m_sound.reset(); }
  // Returns why the sound does not play; empty where it does.
  std::string start(std::span<const std::uint8_t> wave, bool loop, std::function<void()> whenOver) {
    m_holdsSystem = m_holdsSystem || m_system->take();
    if (!m_holdsSystem) {
      return "the sound system does not answer";
    }
    try {
      m_sound = std::make_unique<SdlSound>(wave, loop, std::move(whenOver));
      return {};
    } catch (const std::exception& error) {
      return error.what();
    }
  }

 private:
  std::shared_ptr<SoundSystem> m_system = soundSystem();  // the thread may outlive the process's statics
  bool m_holdsSystem = false;                             // from the first sound on
  std::unique_ptr<SdlSound> m_sound;
};

}  // namespace

std::shared_ptr<SoundWorker> SoundWorker::shared() {
  auto worker = current().lock();
  if (!worker) {
    worker = std::make_shared<SoundWorker>();
    current() = worker;
  }
  return worker;
}

std::shared_ptr<SoundWorker> SoundWorker::sharedIfAny() {
  return current().lock();
}

SoundWorker::SoundWorker()
    : m_state(std::make_shared<State>()), m_thread([state = m_state] { work(state); }) {}

SoundWorker::~SoundWorker() {
  std::unique_lock lock(m_state->mutex);
  m_state->shallEnd = true;
  m_state->changed.notify_all();
  if (m_state->changed.wait_for(lock, longestEnd, [this] { return m_state->hasEnded; })) {
    lock.unlock();
    m_thread.join();
    return;
  }
  const bool isStarting = m_state->isStarting;
  lock.unlock();
  m_thread.detach();
  if (isStarting) {
    logInfo().add("silent: the sound system does not answer");
  }
}

void SoundWorker::play(std::span<const std::uint8_t> wave, bool loop) {
  give({wave, loop});
}

void SoundWorker::stop() {
  give({});
}

void SoundWorker::give(const Order& order) {
  const std::lock_guard lock(m_state->mutex);
  m_state->order = order;
  m_state->isSilent = false;
  m_state->changed.notify_all();
}

bool SoundWorker::waitUntilSilent(std::chrono::milliseconds longest) const {
  std::unique_lock lock(m_state->mutex);
  return m_state->changed.wait_for(lock, longest, [this] { return m_state->isSilent; });
}

std::string SoundWorker::takeFailure() {
  const std::lock_guard lock(m_state->mutex);
  return std::exchange(m_state->failure, std::string());
}

void SoundWorker::work(const std::shared_ptr<State>& state) {
  const auto whenOver = [&state = *state] {
    const std::lock_guard lock(state.mutex);
    state.soundIsOver = true;
    state.changed.notify_all();
  };
  std::optional<ThreadsSound> sound(std::in_place);
  std::unique_lock lock(state->mutex);
  for (;;) {
    state->changed.wait(lock, [&] { return state->shallEnd || state->order || state->soundIsOver; });
    if (state->shallEnd) {
      break;
    }
    const Order order = std::exchange(state->order, std::nullopt).value_or(Order{});
    lock.unlock();
    sound->end();
    lock.lock();
    state->soundIsOver = false;
    state->isStarting = !order.wave.empty();
    lock.unlock();
    std::string failure;
    if (!order.wave.empty()) {
      failure = sound->start(order.wave, order.loop, whenOver);
    }
    lock.lock();
    state->failure = std::move(failure);
    state->isStarting = false;
    state->isSilent = sound->isSilent() && !state->order;
    state->changed.notify_all();
  }
  lock.unlock();
  sound.reset();
  lock.lock();
  state->hasEnded = true;
  state->changed.notify_all();
}
