// Implements the translation of X events and errors into window messages.
#include "host/linux/x11/x11Link.h"

#include <utility>

#include "support/log.h"

namespace {

// Events of this kind, sent by another program, carry this bit.
constexpr std::uint8_t sentMark = 0x80;

template <class Event>
const Event& as(const xcb_generic_event_t& event) {
  return reinterpret_cast<const Event&>(event);
}

}  // namespace

X11Link::X11Link(X11Connection& connection, StopSignals& signals, X11Window& window, MessagePump& pump,
                 const X11Facts& facts)
    : m_connection(connection),
      m_signals(signals),
      m_window(window),
      m_pump(pump),
      m_sight(connection, pump, window.windowId(), facts.power),
      m_windowWidth(window.rectangle().right),
      m_windowHeight(window.rectangle().bottom) {
  // Reading the signals is collect()'s; the watch only wakes the pump.
  m_pump.watch(m_signals.descriptor(), [this] { m_signals.arrived(); });
  m_window.show();
  switch (m_window.kind()) {
    case WindowKind::fullRun:
      m_grab = std::make_unique<InputGrab>(connection, window.windowId(), pump);
      m_grab->start();
      m_monitors = std::make_unique<MonitorWatch>(connection, facts);
      break;
    case WindowKind::ordinary:
      m_keys = std::make_unique<X11Keys>(connection);
      break;
    case WindowKind::foreign:
      // It may be on the screen already, and then is not told to be exposed.
      eraseOnce();
      m_pump.invalidate();
      break;
  }
}

X11Link::~X11Link() {
  m_pump.unwatch(m_signals.descriptor());
}

int X11Link::descriptor() const {
  return xcb_get_file_descriptor(m_connection.get());
}

void X11Link::collect() {
  while (auto event = m_connection.nextEvent()) {
    translate(*event);
  }
  if (m_grab) {
    m_grab->collect();
  }
  m_sight.collect();
  noteChanges();
  if (!m_connection.isUsable()) {
    m_window.forget();
    m_pump.windowIsGone("the display " + m_connection.displayName() +
                        " went away: start the saver again when it is back");
  } else if (m_signals.arrived() && !m_isStopping) {
    m_isStopping = true;
    logInfo().addf("Ended by signal %i of process %i", m_signals.number(), m_signals.sender());
    m_pump.post(WM_CLOSE);
  }
}

bool X11Link::mayPaint() {
  return isSeen() && m_window.presenter().isRead();
}

bool X11Link::isSeen() const {
  return m_sight.isSeen();
}

void X11Link::noteChanges() {
  if (m_sight.takeChange() == X11Sight::Change::seen) {
    // The display may have let go of what it showed.
    m_window.loseContent();
    m_pump.invalidate();
  }
  if (auto monitors = m_monitors ? m_monitors->takeChange() : std::nullopt) {
    m_window.takeMonitors(std::move(*monitors));
    m_pump.post(WM_DISPLAYCHANGE);
  }
}

void X11Link::flush() {
  xcb_flush(m_connection.get());
}

void X11Link::translate(const xcb_generic_event_t& event) {
  if (m_window.presenter().hear(event) || m_sight.hear(event)) {
    return;
  }
  m_pointerIsPut = (m_monitors && m_monitors->hear(event)) || m_pointerIsPut;
  switch (event.response_type & ~sentMark) {
    case 0:
      return hearError(as<xcb_generic_error_t>(event));
    case XCB_EXPOSE:
      return hearExposure(as<xcb_expose_event_t>(event));
    case XCB_KEY_PRESS:
      return postKey(as<xcb_key_press_event_t>(event).detail);
    case XCB_BUTTON_PRESS:
      return postButton(as<xcb_button_press_event_t>(event).detail);
    case XCB_MOTION_NOTIFY:
      return postPointer(as<xcb_motion_notify_event_t>(event).root_x,
                         as<xcb_motion_notify_event_t>(event).root_y);
    case XCB_CONFIGURE_NOTIFY:
      return hearSize(as<xcb_configure_notify_event_t>(event));
    case XCB_DESTROY_NOTIFY:
      return hearDestruction(as<xcb_destroy_notify_event_t>(event));
    case XCB_CLIENT_MESSAGE:
      return hearClientMessage(as<xcb_client_message_event_t>(event));
    default:
      return;
  }
}

void X11Link::hearError(const xcb_generic_error_t& error) {
  const bool isAboutWindow = error.error_code == XCB_WINDOW || error.error_code == XCB_DRAWABLE;
  if (isAboutWindow && error.resource_id == m_window.windowId()) {
    // It went before we could ask to be told of its end.
    windowIsDestroyed();
    return;
  }
  logWarning().addf("The display refused request %i.%i: error %i", error.major_code, error.minor_code,
                    error.error_code);
}

void X11Link::hearExposure(const xcb_expose_event_t& event) {
  if (event.window == m_window.windowId() && event.count == 0) {
    m_window.loseContent();
    eraseOnce();
    m_window.blackenOutside(m_windowWidth, m_windowHeight);
    m_pump.invalidate();
  }
}

void X11Link::eraseOnce() {
  if (!m_isErased) {
    m_isErased = true;
    m_pump.post(WM_ERASEBKGND);
  }
}

void X11Link::hearSize(const xcb_configure_notify_event_t& event) {
  if (event.window == m_window.windowId()) {
    m_windowWidth = event.width;
    m_windowHeight = event.height;
    m_window.blackenOutside(m_windowWidth, m_windowHeight);
  } else if (event.window == m_connection.screen().root && m_window.kind() == WindowKind::fullRun) {
    m_window.coverScreen(event.width, event.height);
  }
}

void X11Link::hearDestruction(const xcb_destroy_notify_event_t& event) {
  if (event.window == m_window.windowId()) {
    windowIsDestroyed();
  }
}

void X11Link::windowIsDestroyed() {
  m_window.forget();
  m_pump.windowIsGone(
      "the window was destroyed by another program: start the saver again in one that exists");
}

void X11Link::hearClientMessage(const xcb_client_message_event_t& event) {
  const xcb_atom_t closing = m_window.closeMessage();
  if (closing != XCB_NONE && event.format == 32 && event.data.data32[0] == closing) {
    m_pump.post(WM_CLOSE);
  }
}

void X11Link::postPointer(int x, int y) {
  const WPARAM how = std::exchange(m_pointerIsPut, false) ? pointerWasPut : 0;
  m_pump.post(WM_MOUSEMOVE, how, static_cast<LPARAM>((x & 0xFFFF) | (y & 0xFFFF) << 16));
}

void X11Link::postButton(xcb_button_t button) {
  constexpr xcb_button_t firstWheel = 4;
  constexpr xcb_button_t lastWheel = 7;
  m_pump.post(button >= firstWheel && button <= lastWheel ? WM_MOUSEWHEEL : WM_LBUTTONDOWN);
}

void X11Link::postKey(xcb_keycode_t key) {
  m_pump.post(WM_KEYDOWN, m_keys ? m_keys->nameOf(key) : WPARAM{0});
}
