// Implements the thread that starts and ends sounds.
#include "services/linux/soundWorker.h"

#include <atomic>
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
  bool shallEnd = false;
  bool hasEnded = false;
  std::string failure;
};

namespace {

// A worker that was left behind still holds the sound system. No second one goes near it: the rest of the run
// is silent.
std::atomic<bool>& systemIsLost() {
  static std::atomic<bool> lost{false};
  return lost;
}

std::weak_ptr<SoundWorker>& current() {
  static std::weak_ptr<SoundWorker> worker;
  return worker;
}

std::unique_ptr<SdlSound> start(std::span<const std::uint8_t> wave, bool loop, std::function<void()> whenOver,
                                std::string& failure) {
  if (systemIsLost()) {
    failure = "the sound system does not answer";
    return nullptr;
  }
  try {
    return std::make_unique<SdlSound>(wave, loop, std::move(whenOver));
  } catch (const std::exception& error) {
    failure = error.what();
    return nullptr;
  }
}

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
  const bool ended = m_state->changed.wait_for(lock, longestEnd, [this] { return m_state->hasEnded; });
  lock.unlock();
  if (ended) {
    m_thread.join();
  } else {
    systemIsLost() = true;
    logInfo().add("silent: the sound system does not answer and is left behind");
    m_thread.detach();
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
  std::unique_ptr<SdlSound> sound;
  std::unique_lock lock(state->mutex);
  for (;;) {
    state->changed.wait(lock, [&] { return state->shallEnd || state->order || state->soundIsOver; });
    if (state->shallEnd) {
      break;
    }
    const Order order = std::exchange(state->order, std::nullopt).value_or(Order{});
    lock.unlock();
    sound.reset();
    lock.lock();
    state->soundIsOver = false;
    lock.unlock();
    std::string failure;
    if (!order.wave.empty()) {
      sound = start(order.wave, order.loop, whenOver, failure);
    }
    lock.lock();
    state->failure = std::move(failure);
    state->isSilent = !sound && !state->order;
    state->changed.notify_all();
  }
  lock.unlock();
  sound.reset();
  lock.lock();
  state->hasEnded = true;
  state->changed.notify_all();
}
