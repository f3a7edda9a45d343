// Implements the taking of keyboard and pointer without waiting for answers.
#include "host/linux/x11/inputGrab.h"

#include <sys/timerfd.h>
#include <xcb/xcbext.h>

#include "support/log.h"

namespace {

constexpr long retryPeriod = 100;  // milliseconds
constexpr int mostAttempts = 30;

}  // namespace

InputGrab::InputGrab(X11Connection& connection, xcb_window_t window, MessagePump& pump)
    : m_connection(connection), m_window(window), m_pump(pump) {}

InputGrab::~InputGrab() {
  if (m_retryTimer.isOpen()) {
    m_pump.unwatch(m_retryTimer.get());
  }
  // Also where an answer is still on its way: giving back what one does not hold does no harm.
  if (m_pointer.attempts > 0) {
    xcb_ungrab_pointer(m_connection.get(), XCB_CURRENT_TIME);
    xcb_ungrab_keyboard(m_connection.get(), XCB_CURRENT_TIME);
    xcb_flush(m_connection.get());
  }
}

void InputGrab::start() {
  ask(m_keyboard);
  ask(m_pointer);
  m_retryTimer = FileDescriptor(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC));
  if (m_retryTimer.isOpen()) {
    const timespec step{0, retryPeriod * 1000000};
    const itimerspec times{step, step};
    ::timerfd_settime(m_retryTimer.get(), 0, &times, nullptr);
    m_pump.watch(m_retryTimer.get(), [this] { tryAgain(); });
  }
}

void InputGrab::ask(Device& device) {
  xcb_connection_t* c = m_connection.get();
  constexpr auto async = XCB_GRAB_MODE_ASYNC;
  ++device.attempts;
  if (&device == &m_keyboard) {
    device.request = xcb_grab_keyboard(c, 0, m_window, XCB_CURRENT_TIME, async, async).sequence;
    return;
  }
  constexpr std::uint16_t events = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_POINTER_MOTION;
  // Without a cursor of its own the grab shows the window's, which is invisible.
  device.request =
      xcb_grab_pointer(c, 0, m_window, events, async, async, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME).sequence;
}

void InputGrab::collect() {
  hearAnswer(m_keyboard);
  hearAnswer(m_pointer);
}

void InputGrab::hearAnswer(Device& device) {
  void* memory = nullptr;
  xcb_generic_error_t* error = nullptr;
  if (!device.request || xcb_poll_for_reply(m_connection.get(), *device.request, &memory, &error) == 0) {
    return;
  }
  std::free(error);
  device.request.reset();
  // Both devices are answered in the same form.
  const X11Reply<xcb_grab_pointer_reply_t> answer(static_cast<xcb_grab_pointer_reply_t*>(memory));
  device.isHeld = answer && answer->status == XCB_GRAB_STATUS_SUCCESS;
  if (!device.isHeld && device.attempts >= mostAttempts) {
    logWarning().addf("The %s could not be grabbed: another program holds it. The saver runs on without it.",
                      device.name);
  }
}

void InputGrab::tryAgain() {
  std::uint64_t periods = 0;
  if (::read(m_retryTimer.get(), &periods, sizeof periods) < 0) {
    return;
  }
  bool isDone = true;
  for (Device* device : {&m_keyboard, &m_pointer}) {
    const bool wantsMore = !device->isHeld && device->attempts < mostAttempts;
    if (wantsMore && !device->request) {
      ask(*device);
    }
    isDone = isDone && !wantsMore && !device->request;
  }
  if (isDone) {
    m_pump.unwatch(m_retryTimer.get());
    m_retryTimer = FileDescriptor();
  }
}
