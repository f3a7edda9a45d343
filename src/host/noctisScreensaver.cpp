// Implements the screen saver: initialisation, the frame cycle and the end.
#include "host/noctisScreensaver.h"

#include <utility>

#include "support/settings.h"

namespace {

std::string& sharedContainerFolder() {
  static std::string folder;
  return folder;
}

}  // namespace

noctisScreensaver::noctisScreensaver() {
  mPreserveDeskopContents = true;
  logInfo().addf("INI file for user settings=%s", xplUserSettings().filename().c_str());
  logInfo().addf("INI file for app settings=%s", xplApplicationSettings().filename().c_str());
}

noctisScreensaver::~noctisScreensaver() = default;

void noctisScreensaver::initWithWindowHandle(xplWindowHandle windowHandle, std::int32_t monitorId) {
  const logFunctionLife block("noctisScreensaver.initWithWindowHandle()");
  xplScreenSaverAbstract::initWithWindowHandle(windowHandle, monitorId);
  if (m_world) {
    logError().add("noctisScreensaver.initWithWindowHandle(): ncWorldPtr is not NULL");
    // The new world takes the place of the old one, which is put aside and not deleted before the saver goes.
    m_replacedWorlds.push_back(std::move(m_world));
  }
  logInfo().addf("Creating TnoctisWorld with monitorId =%i", monitorId);
  m_world = std::make_unique<TnoctisWorld>(window(), monitorId, m_MonitorList, containerFolder());
  m_world->initializeWorld();
}

void noctisScreensaver::showConfigureSheet(xplWindowHandle parentWindow) {
  logInfo().add("noctisScreensaver::showConfigureSheet()");
  xplShowSettings(parentWindow);
}

void noctisScreensaver::setContainerFolder(const std::string& path) {
  xplScreenSaverAbstract::setContainerFolder(path);
  sharedContainerFolder() = path;
}

const std::string& noctisScreensaver::processContainerFolder() {
  return sharedContainerFolder();
}

void noctisScreensaver::animateOneFrame(float seconds) {
  if (m_world) {
    m_world->update(seconds);
  }
}

void noctisScreensaver::drawOneFrame() {
  if (m_world) {
    m_world->draw();
  }
}

void noctisScreensaver::shutDown() {
  const logFunctionLife block("noctisScreensaver.shutDown()");
  logInfo().add("Deleted startupEffectPtr");
  m_world.reset();
  logInfo().add("Deleted ncWorldPtr");
  logInfo().add("Deleted m_telemetryPtr");
}
