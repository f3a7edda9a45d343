// Implements the message flow on descriptors that are polled together.
#include "host/linux/messagePump.h"

#include <algorithm>
#include <utility>

#include <poll.h>
#include <sys/timerfd.h>

namespace {

MessagePump* currentPump = nullptr;

}  // namespace

MessagePump::MessagePump(xplWindowHandle window, WindowKind kind, Procedure procedure)
    : m_window(window), m_kind(kind), m_procedure(procedure) {
  currentPump = this;
}

MessagePump::~MessagePump() {
  currentPump = nullptr;
}

MessagePump* MessagePump::current() {
  return currentPump;
}

LRESULT MessagePump::send(UINT message, WPARAM wParam, LPARAM lParam) {
  return m_procedure(m_window, message, wParam, lParam);
}

void MessagePump::post(UINT message, WPARAM wParam, LPARAM lParam) {
  m_messages.push_back({message, wParam, lParam});
}

std::uintptr_t MessagePump::startTimer(std::uintptr_t id, unsigned milliseconds) {
  stopTimer(id);
  FileDescriptor timer(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC));
  const unsigned period = std::max(milliseconds, 1U);
  const timespec step{static_cast<time_t>(period / 1000), static_cast<long>(period % 1000) * 1000000};
  const itimerspec times{step, step};
  if (id == 0 || !timer.isOpen() || ::timerfd_settime(timer.get(), 0, &times, nullptr) != 0) {
    return 0;
  }
  const int descriptor = timer.get();
  m_timers.push_back({id, std::move(timer)});
  watch(descriptor, [this, id, descriptor] { tick(id, descriptor); });
  return id;
}

void MessagePump::stopTimer(std::uintptr_t id) {
  const auto found =
      std::find_if(m_timers.begin(), m_timers.end(), [&](const Timer& t) { return t.id == id; });
  if (found == m_timers.end()) {
    return;
  }
  unwatch(found->descriptor.get());
  m_timers.erase(found);
  std::erase_if(m_messages, [&](const Message& m) { return m.message == WM_TIMER && m.wParam == id; });
}

void MessagePump::tick(std::uintptr_t id, int descriptor) {
  std::uint64_t periods = 0;  // that have passed since it was read; however many, one message tells it
  if (::read(descriptor, &periods, sizeof periods) == static_cast<ssize_t>(sizeof periods)) {
    post(WM_TIMER, id);
  }
}

void MessagePump::watch(int descriptor, std::function<void()> onReadable) {
  m_watches.push_back({descriptor, std::move(onReadable)});
}

void MessagePump::unwatch(int descriptor) {
  std::erase_if(m_watches, [&](const Watch& w) { return w.descriptor == descriptor; });
}

void MessagePump::destroyWindow() {
  if (!m_isDestroyed) {
    m_isDestroyed = true;
    send(WM_DESTROY);
  }
}

void MessagePump::windowIsGone(const std::string& why) {
  if (!m_isDestroyed) {
    m_failure = why;
    destroyWindow();
  }
  quit();
}

void MessagePump::run(DisplayLink& display) {
  while (!m_hasQuit) {
    display.flush();
    display.collect();
    if (m_hasQuit) {
      return;
    }
    if (!m_messages.empty()) {
      dispatchNext();
      continue;
    }
    const bool canPaint = m_isInvalid && display.mayPaint();
    if (!waitAndCall(display, canPaint ? 0 : -1) && canPaint) {
      send(WM_PAINT);
    }
  }
}

void MessagePump::dispatchNext() {
  const Message next = m_messages.front();
  m_messages.pop_front();
  send(next.message, next.wParam, next.lParam);
}

bool MessagePump::waitAndCall(const DisplayLink& display, int milliseconds) {
  std::vector<pollfd> waits{{display.descriptor(), POLLIN, 0}};
  for (const auto& watch : m_watches) {
    waits.push_back({watch.descriptor, POLLIN, 0});
  }
  if (::poll(waits.data(), waits.size(), milliseconds) <= 0) {
    return false;
  }
  for (std::size_t i = 1; i < waits.size(); ++i) {
    if (waits[i].revents != 0) {
      callWatch(waits[i].fd);
    }
  }
  return true;
}

void MessagePump::callWatch(int descriptor) {
  const auto found = std::find_if(m_watches.begin(), m_watches.end(),
                                  [&](const Watch& w) { return w.descriptor == descriptor; });
  if (found != m_watches.end()) {
    const auto call = found->onReadable;  // it may unwatch itself
    call();
  }
}
