// Implements the screen saver: initialisation, the frame cycle and the end.
#include "host/noctisScreensaver.h"

#include <string_view>
#include <utility>

#include "host/programVersion.h"
#include "services/telemetryValues.h"
#include "support/settings.h"
#include "world/oldTvEffect.h"

namespace {

static_assert(std::string_view(telemetryValues::productVersion) == programVersion);

constexpr int oldTvEffect = 1;  // the setting's value

std::string& sharedContainerFolder() {
  static std::string folder;
  return folder;
}

// What a platform or a test left out is not made.
template <class Maker>
auto made(const Maker& maker) {
  return maker ? maker() : nullptr;
}

}  // namespace

noctisScreensaver::noctisScreensaver(xplServices services)
    : m_services(std::move(services)), m_sleepPreventer(made(m_services.makeKeepAwake)) {
  mPreserveDeskopContents = true;
  logInfo().addf("INI file for user settings=%s", xplUserSettings().filename().c_str());
  logInfo().addf("INI file for app settings=%s", xplApplicationSettings().filename().c_str());
}

noctisScreensaver::~noctisScreensaver() {
  m_startupEffect.reset();
  m_sleepPreventer.restoreIdleSleep();
}

void noctisScreensaver::initWithWindowHandle(xplWindowHandle windowHandle, std::int32_t monitorId) {
  const logFunctionLife block("noctisScreensaver.initWithWindowHandle()");
  xplScreenSaverAbstract::initWithWindowHandle(windowHandle, monitorId);
  if (m_world) {
    logError().add("noctisScreensaver.initWithWindowHandle(): ncWorldPtr is not NULL");
    // Deliberate: the new world takes the place of the old one, which is put aside and not deleted before the
    // saver goes: whoever still draws it must find it.
    m_replacedWorlds.push_back(std::move(m_world));
  }
  logInfo().addf("Creating TnoctisWorld with monitorId =%i", monitorId);
  startTelemetry(windowHandle, monitorId);
  startStartupEffect(monitorId);
  m_world = std::make_unique<TnoctisWorld>(window(), monitorId, m_MonitorList, containerFolder(),
                                           made(m_services.makeSoundOutput));
  m_world->initializeWorld();
}

// Deliberate: besides the full run, a window with one particular number is reported, preview or not. It
// stands for nothing; it lets a preview's report be tried out in a window that a test makes. Do not take the
// number away.
bool noctisScreensaver::isRunReported(std::int32_t monitorId, std::uintptr_t windowNumber) {
  constexpr std::uintptr_t reportedWindow = 0x1903F4;
  return monitorId == 0 || windowNumber == reportedWindow;
}

void noctisScreensaver::startTelemetry(xplWindowHandle windowHandle, std::int32_t monitorId) {
  if (m_telemetry || !m_services.makeAnalytics || !isRunReported(monitorId, xplHandleNumber(windowHandle))) {
    return;
  }
  m_telemetry = std::make_unique<cTelemetryController>(
      [make = m_services.makeAnalytics, folder = containerFolder()] { return make(folder); });
}

void noctisScreensaver::startStartupEffect(std::int32_t monitorId) {
  if (!m_startupEffect && m_appSettings.startupEffect.read() == oldTvEffect) {
    m_startupEffect = std::make_unique<cWindowTransitionEffect_OldTV>();
  }
  if (m_startupEffect) {
    m_startupEffect->initWithWindow(window(), monitorId);
  }
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
  if (m_world && !startupEffectPlays()) {
    m_world->update(seconds);
    m_sleepPreventer.tick();
  }
}

void noctisScreensaver::monitorsChanged() {
  xplScreenSaverAbstract::monitorsChanged();
  if (m_world) {
    m_world->followMonitors();
  }
}

void noctisScreensaver::drawOneFrame() {
  if (startupEffectPlays()) {
    m_startupEffect->draw();
    return;
  }
  if (m_startupEffect) {
    m_startupEffect.reset();
    logInfo().add("mPreserveDeskopContents = false;");
    mPreserveDeskopContents = false;
  }
  if (m_world) {
    m_world->draw();
  }
}

void noctisScreensaver::shutDown() {
  if (m_telemetry) {
    m_telemetry->requestAbort();
  }
  const logFunctionLife block("noctisScreensaver.shutDown()");
  m_startupEffect.reset();
  logInfo().add("Deleted startupEffectPtr");
  m_world.reset();
  logInfo().add("Deleted ncWorldPtr");
  m_telemetry.reset();
  logInfo().add("Deleted m_telemetryPtr");
}
