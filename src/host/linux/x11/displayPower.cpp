// Implements listening to the display's power management, and asking it.
#include "host/linux/x11/displayPower.h"

#include <array>

#include <sys/timerfd.h>
#include <sys/uio.h>
#include <xcb/dpms.h>
#include <xcb/xcbext.h>

namespace {

// Less than a second, so that the sky is back within one of the display's coming on.
constexpr long askPeriod = 800;  // milliseconds

// The request and the event of DPMS 1.2, which the library does not know yet.
struct SelectInput {
  std::uint8_t majorOpcode = 0;
  std::uint8_t minorOpcode = 0;
  std::uint16_t length = 0;
  std::uint32_t events = 1;  // the change of power level or state
};
constexpr std::uint8_t selectInputOpcode = 8;
constexpr std::uint16_t infoNotify = 0;
struct InfoNotify {
  std::uint8_t responseType;
  std::uint8_t extension;
  std::uint16_t sequence;
  std::uint32_t length;
  std::uint16_t eventType;
  std::uint16_t pad;
  std::uint32_t time;
  std::uint16_t powerLevel;
};

}  // namespace

DisplayPower::DisplayPower(X11Connection& connection, MessagePump& pump,
                           std::optional<X11Facts::PowerManagement> management)
    : m_connection(connection), m_pump(pump), m_management(management) {
  if (!m_management) {
    return;
  }
  if (m_management->tells) {
    askToBeTold();
  } else {
    m_askTimer = FileDescriptor(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC));
  }
  if (m_askTimer.isOpen()) {
    const timespec step{0, askPeriod * 1000000};
    const itimerspec times{step, step};
    ::timerfd_settime(m_askTimer.get(), 0, &times, nullptr);
    m_pump.watch(m_askTimer.get(), [this] { askWhenDue(); });
  }
  ask();
}

DisplayPower::~DisplayPower() {
  if (m_askTimer.isOpen()) {
    m_pump.unwatch(m_askTimer.get());
  }
  if (m_request) {
    xcb_discard_reply(m_connection.get(), *m_request);
  }
}

void DisplayPower::askToBeTold() {
  SelectInput request;
  // The library keeps two parts before the first for itself.
  std::array<iovec, 3> parts{};
  parts[2] = {&request, sizeof request};
  constexpr xcb_protocol_request_t description{
      .count = 1, .ext = &xcb_dpms_id, .opcode = selectInputOpcode, .isvoid = 1};
  xcb_send_request(m_connection.get(), 0, &parts[2], &description);
}

void DisplayPower::ask() {
  m_request = xcb_dpms_info_unchecked(m_connection.get()).sequence;
}

void DisplayPower::askWhenDue() {
  std::uint64_t periods = 0;
  if (::read(m_askTimer.get(), &periods, sizeof periods) > 0 && !m_request) {
    ask();
  }
}

void DisplayPower::collect() {
  void* memory = nullptr;
  xcb_generic_error_t* error = nullptr;
  if (!m_request || xcb_poll_for_reply(m_connection.get(), *m_request, &memory, &error) == 0) {
    return;
  }
  std::free(error);
  m_request.reset();
  const X11Reply<xcb_dpms_info_reply_t> answer(static_cast<xcb_dpms_info_reply_t*>(memory));
  m_isOn = !answer || answer->power_level == XCB_DPMS_DPMS_MODE_ON;
}

bool DisplayPower::hear(const xcb_generic_event_t& event) {
  const auto& change = reinterpret_cast<const InfoNotify&>(event);
  if (!m_management || event.response_type != XCB_GE_GENERIC || change.extension != m_management->opcode ||
      change.eventType != infoNotify) {
    return false;
  }
  if (m_request) {
    // Its answer may be older than this.
    xcb_discard_reply(m_connection.get(), *m_request);
    m_request.reset();
  }
  m_isOn = change.powerLevel == XCB_DPMS_DPMS_MODE_ON;
  return true;
}
