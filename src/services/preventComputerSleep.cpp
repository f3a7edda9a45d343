// Implements when sleep is prevented and when it is allowed again.
#include "services/preventComputerSleep.h"

#include <utility>

#include "support/clock.h"
#include "support/log.h"

namespace {

constexpr std::int32_t firstTimedMode = 1;
constexpr std::int32_t lastTimedMode = 2;
constexpr std::int32_t alwaysMode = 3;
constexpr std::int32_t offMode = 0;
// Deliberate: the check comes when the counter passes this number, so on every 1501st frame and not on every
// 1500th. At 40 ms a frame that is about a minute.
constexpr std::int32_t tickInterval = 1500;
constexpr std::int64_t secondsPerMinute = 60;

}  // namespace

cPreventComputerSleep::cPreventComputerSleep(std::unique_ptr<xpliKeepAwake> keepAwake, xplSettings& store)
    : cAppSettings(store),
      m_store(store),
      m_keepAwake(std::move(keepAwake)),
      m_mode(preventComputerSleep.read()) {
  changeSettingIfTimeHasExpired();
  if (isActive()) {
    preventIdleSleep();
  }
}

cPreventComputerSleep::~cPreventComputerSleep() {
  restoreIdleSleep();
}

bool cPreventComputerSleep::isTimed() const {
  return m_mode >= firstTimedMode && m_mode <= lastTimedMode;
}

// The minute that is named as the end still belongs to the time.
bool cPreventComputerSleep::hasExpired() const {
  return xplClock::now() / secondsPerMinute > preventComputerSleepUntilUTCtime_inMinutes.read();
}

bool cPreventComputerSleep::isActive() const {
  return isTimed() ? !hasExpired() : m_mode == alwaysMode;
}

bool cPreventComputerSleep::preventIdleSleep() {
  logInfo().add("cPreventComputerSleep calls preventIdleSleep()");
  m_isPreventing = m_keepAwake && m_keepAwake->request();
  if (!m_isPreventing) {
    logWarning().add("cPreventComputerSleep preventIdleSleep() failed");
  }
  return m_isPreventing;
}

void cPreventComputerSleep::restoreIdleSleep() {
  if (!m_isPreventing) {
    return;
  }
  logInfo().add("cPreventComputerSleep calls restoreIdleSleep()");
  m_keepAwake->release();
  m_isPreventing = false;
  changeSettingIfTimeHasExpired();
}

void cPreventComputerSleep::changeSettingIfTimeHasExpired() {
  logInfo().add("cPreventComputerSleep.changeSettingIfTimeHasExpired()");
  if (isTimed() && hasExpired()) {
    // The settings sheet may have chosen anew while this ran, and that must not be undone.
    m_store.reload();
    m_mode = preventComputerSleep.read();
  }
  if (isTimed() && hasExpired()) {
    logInfo().add("cPreventComputerSleep expired and changing setting to NONE");
    m_mode = offMode;
    preventComputerSleep.write(offMode);
  }
}

void cPreventComputerSleep::tick() {
  if (!m_isPreventing) {
    return;
  }
  if (m_keepAwake->wasRefused()) {
    logWarning().add("cPreventComputerSleep preventIdleSleep() failed");
    m_isPreventing = false;
    return;
  }
  if (m_mode == alwaysMode || ++m_tickCounter <= tickInterval) {
    return;
  }
  logInfo().add("cPreventComputerSleep is tick time");
  m_tickCounter = 0;
  if (!isActive()) {
    restoreIdleSleep();
  }
}
