// Implements the binding of a screen saver to its window and monitors.
#include "host/screenSaverAbstract.h"

#include "host/programVersion.h"

namespace {

// As the log shows it: the low 32 bits, which tell all windows apart.
unsigned shownHandle(xplWindowHandle handle) {
  return static_cast<unsigned>(xplHandleNumber(handle));
}

}  // namespace

xplScreenSaverAbstract::xplScreenSaverAbstract() {
  logInfo().addf("Program: %s %s", programName, programVersion);
}

xplScreenSaverAbstract::~xplScreenSaverAbstract() {
  if (!m_ownsWindow) {
    // An initialisation broke off on the way: whoever was handed the window may still draw on it.
    static_cast<void>(m_window.release());
  }
}

void xplScreenSaverAbstract::initWithWindowHandle(xplWindowHandle windowHandle, std::int32_t /*monitorId*/) {
  logInfo().addf("xplScreenSaverAbstract.initWithWindowHandle(%X)", shownHandle(windowHandle));
  bindWindow(windowHandle);
  logInfo().addf("TopLeft:%i,%i screen width:%i, height:%i", m_window->getLeft(), m_window->getTop(),
                 getWidth(), getHeight());
  m_windowHandle = windowHandle;
  listMonitors(windowHandle);
  logInfo().addf("Screensaver container folder:%s", m_containerFolder.c_str());
  m_ownsWindow = true;
}

void xplScreenSaverAbstract::bindWindow(xplWindowHandle windowHandle) {
  if (m_window) {
    return;
  }
  if (windowHandle) {
    logInfo().addf("xplWindow(wHandle:%X) constructor start", shownHandle(windowHandle));
  } else {
    logInfo().add("Error: xplWindow(wHandle) with NIL wHandle");
  }
  m_window = std::make_unique<xplWindow>(windowHandle);
}

void xplScreenSaverAbstract::listMonitors(xplWindowHandle windowHandle) {
  const bool complete = xplEnumerateMonitors(windowHandle, m_MonitorList);
  const int count = complete ? static_cast<int>(m_MonitorList.size()) : 0;
  logInfo().addf("Number of monitors:%i", count);
  for (int i = 0; i < count; ++i) {
    const auto& monitor = m_MonitorList[static_cast<std::size_t>(i)];
    logInfo().addf("Monitor %i: Left %i, top %i, right %i, bottom %i", i, monitor.left, monitor.top,
                   monitor.getRight(), monitor.getBottom());
  }
}

void xplScreenSaverAbstract::monitorsChanged() {
  logInfo().add("The monitors have changed");
  std::vector<xplRect<int>> before;
  m_MonitorList.swap(before);
  listMonitors(m_windowHandle);
  if (m_MonitorList.empty()) {
    m_MonitorList.swap(before);
  }
}

void xplScreenSaverAbstract::flushOneFrame() {
  if (m_window) {
    m_window->flush();
  }
}

int xplScreenSaverAbstract::getWidth() {
  return m_window ? m_window->getWidth() : 0;
}

int xplScreenSaverAbstract::getHeight() {
  return m_window ? m_window->getHeight() : 0;
}
