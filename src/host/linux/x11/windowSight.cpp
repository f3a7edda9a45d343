// Implements what is made of the display's words on a window's being seen.
#include "host/linux/x11/windowSight.h"

#include <cstdint>

namespace {

// Events that another program made up carry this bit; what they say of visibility is not believed.
constexpr std::uint8_t sentMark = 0x80;

}  // namespace

bool WindowSight::hear(const xcb_generic_event_t& event) {
  if ((event.response_type & sentMark) != 0) {
    return false;
  }
  switch (event.response_type) {
    case XCB_VISIBILITY_NOTIFY: {
      const auto& change = reinterpret_cast<const xcb_visibility_notify_event_t&>(event);
      if (change.window != m_window) {
        return false;
      }
      m_isCovered = change.state == XCB_VISIBILITY_FULLY_OBSCURED;
      return true;
    }
    case XCB_MAP_NOTIFY:
      if (reinterpret_cast<const xcb_map_notify_event_t&>(event).window != m_window) {
        return false;
      }
      m_isShown = true;
      return true;
    case XCB_UNMAP_NOTIFY:
      if (reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window != m_window) {
        return false;
      }
      // How it lies among others is told anew when it comes back.
      m_isShown = false;
      m_isCovered = false;
      return true;
    default:
      return false;
  }
}
