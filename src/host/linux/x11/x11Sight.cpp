// Implements the telling of changes.
#include "host/linux/x11/x11Sight.h"

#include "support/log.h"

X11Sight::Change X11Sight::takeChange() {
  if (m_wasSeen == isSeen()) {
    return Change::none;
  }
  m_wasSeen = !m_wasSeen;
  if (m_wasSeen) {
    logInfo().add("The window can be seen again: it is drawn on");
    return Change::seen;
  }
  logInfo().add(m_power.isOn() ? "The window is covered: drawing waits"
                               : "The display is switched off: drawing waits");
  return Change::unseen;
}
