// What all effects between two contents of the window share.
#include "world/windowTransitionEffect.h"

#include "support/log.h"

void cWindowTransitionEffect_base::initWithWindow(xplWindow* window, std::int32_t /*monitorId*/) {
  logInfo().add("cWindowTransitionEffect_base.initWithWindow()");
  m_window = window;
}

int cWindowTransitionEffect_base::getWidth() {
  return m_window != nullptr ? m_window->getWidth() : 0;
}

int cWindowTransitionEffect_base::getHeight() {
  return m_window != nullptr ? m_window->getHeight() : 0;
}
