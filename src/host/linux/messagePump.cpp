// Implements the message flow on descriptors that are polled together.
#include "host/linux/messagePump.h"

#include <algorithm>
#include <utility>

#include <poll.h>

#include "host/linux/windowTimers.h"
#include "host/runStatistics.h"

namespace {

MessagePump* currentPump = nullptr;

// While nobody sees the window.
constexpr int unseenPeriod = 1000;  // milliseconds between two looks at the timers
constexpr std::uint64_t unseenTicks =
    25;  // that long a time of the saver's own timer, and no more after a pause

// What the display says never waits longer for a tick.
constexpr int longestUnheard = 50;  // milliseconds

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
  const bool isOfAFrame = message == WM_TIMER || message == WM_PAINT;
  return m_statistics != nullptr && isOfAFrame ? sendMeasured(message, wParam, lParam)
                                               : m_procedure(m_window, message, wParam, lParam);
}

LRESULT MessagePump::sendMeasured(UINT message, WPARAM wParam, LPARAM lParam) {
  m_statistics->workBegins();
  const LRESULT answer = m_procedure(m_window, message, wParam, lParam);
  m_statistics->workEnds();
  if (message == WM_PAINT) {
    m_statistics->frameIsShown();
  }
  return answer;
}

void MessagePump::post(UINT message, WPARAM wParam, LPARAM lParam) {
  m_messages.push_back({message, wParam, lParam});
}

void MessagePump::collectTicks(std::uint64_t most) {
  for (const auto& timer : windowTimers().all()) {
    const std::uint64_t ticks = std::min(timer.periodsPassed(), most);
    for (std::uint64_t i = 0; i < ticks; ++i) {
      post(WM_TIMER, timer.id);
    }
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
  const bool isTickAwaited = milliseconds < 0 && display.isSeen() && display.canWaitForTick();
  // A negative descriptor is passed over.
  std::vector<pollfd> waits{{isTickAwaited ? -1 : display.descriptor(), POLLIN, 0}};
  for (const auto& watch : m_watches) {
    waits.push_back({watch.descriptor, POLLIN, 0});
  }
  const std::size_t watches = waits.size();
  const bool isSeen = display.isSeen();
  for (const auto& timer : windowTimers().all()) {
    if (isSeen) {
      waits.push_back({timer.descriptor.get(), POLLIN, 0});
    }
  }
  const int longest = isTickAwaited ? longestUnheard : isSeen ? milliseconds : unseenPeriod;
  const bool isReady = ::poll(waits.data(), waits.size(), longest) > 0;
  for (std::size_t i = 1; isReady && i < watches; ++i) {
    if (waits[i].revents != 0) {
      callWatch(waits[i].fd);
    }
  }
  if (isReady || !isSeen) {
    collectTicks(isSeen ? 1 : unseenTicks);
  }
  return isReady;
}

void MessagePump::callWatch(int descriptor) {
  const auto found = std::find_if(m_watches.begin(), m_watches.end(),
                                  [&](const Watch& w) { return w.descriptor == descriptor; });
  if (found != m_watches.end()) {
    const auto call = found->onReadable;  // it may unwatch itself
    call();
  }
}
