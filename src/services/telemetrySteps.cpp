// Implements the steps of a usage report.
#include "services/telemetrySteps.h"

#include "services/telemetryValues.h"
#include "support/log.h"

namespace {

constexpr unsigned waitStep = 50;                 // milliseconds
constexpr std::int64_t waitBeforeStart = 23'000;  // milliseconds: who looks in for a moment is not counted
constexpr std::int64_t waitBeforeStop = 4'000;    // milliseconds: the library's time to deliver

// Deliberate: two of the results are told, all others are not looked at; the session begins in any case.
void setCachePath(xpliAnalytics& library, const std::string& folder) {
  const int result = library.setFilePath(folder);
  if (result == xpliAnalytics::invalidPath) {
    logWarning().addf("TB invalid path:%s", folder.c_str());
  } else if (result == xpliAnalytics::accessDenied) {
    logWarning().addf("TB access denied to path:%s", folder.c_str());
  }
}

void reportErrors(xpliAnalytics& library) {
  const std::string errors = library.takeErrors();
  if (!errors.empty()) {
    logWarning().addf("#7592a: Errors in m_telemetryPtr:%s", errors.c_str());
  }
}

// Deliberate: the block bears the name of a destructor. It is one of the marks by which logs are compared.
void stopSession(xpliAnalytics& library) {
  const logFunctionLife block("~xplAppTelemetryTrackerBird()");
  library.stop();
}

}  // namespace

void cTelemetryDoAllSteps::waitInterruptibly(std::int64_t milliseconds) {
  for (std::int64_t elapsed = 0; !abortRequested() && elapsed < milliseconds; elapsed += waitStep) {
    xplClock::sleep(waitStep, m_wakeUp);
  }
}

void cTelemetryDoAllSteps_Trackerbird::doAllSteps(const MakeAnalytics& makeAnalytics,
                                                  const std::string& cacheFolder) {
  waitInterruptibly(waitBeforeStart);
  if (abortRequested()) {
    logInfo().add("telemetry TrackerBird Aborted. Point1");
    return;
  }
  if (const auto library = makeAnalytics()) {
    doSession(*library, cacheFolder);
  }
}

void cTelemetryDoAllSteps_Trackerbird::doSession(xpliAnalytics& library, const std::string& cacheFolder) {
  setCachePath(library, cacheFolder);
  library.createConfig(telemetryValues::serviceAddress, telemetryValues::productId,
                       telemetryValues::productVersion, telemetryValues::buildStamp(), false);
  library.start();
  reportErrors(library);
  if (abortRequested()) {
    logInfo().add("telemetry TrackerBird Aborted. Point2");
    stopSession(library);
    return;
  }
  waitInterruptibly(waitBeforeStop);
  if (abortRequested()) {
    logInfo().add("telemetry TrackerBird Aborted. Point3");
    stopSession(library);
    return;
  }
  stopSession(library);
  // Deliberate: only here; after an abort nobody waits to hear of errors, and the log keeps its few lines.
  reportErrors(library);
}
