// Implements the life of the thread that reports a session of use.
#include "services/telemetryController.h"

#include <exception>
#include <system_error>
#include <utility>

#include "support/fileSystem.h"
#include "support/log.h"
#include "support/settingsGroups.h"

cTelemetryController::cTelemetryController(MakeAnalytics makeAnalytics) {
  const std::string folder = cacheFolder();
  if (!folder.empty() && !xplFileSystemMini::folderExists(folder)) {
    xplFileSystemMini::createFolder(folder);  // without it the library tells what it thinks of the path
  }
  // The settings belong to this thread; the other one only learns what they say.
  const bool isAllowed = !cAppSettings().sisableTelemetry.read();
  const logFunctionLife block("creating telemetry thread");
  startThread(std::move(makeAnalytics), folder, isAllowed);
}

cTelemetryController::~cTelemetryController() {
  if (!m_thread) {
    return;
  }
  const logFunctionLife block("deleting telemetry thread");
  requestAbort();
  logInfo().add("will call thread->join()");
  m_thread->join();
  logInfo().add("returned from thread->join(). Will call thread delete");
  m_thread.reset();
  logInfo().add("returned from thread delete");
}

std::string cTelemetryController::cacheFolder() {
  return cacheFolderIn(xplFileSystemMini::getFolder_CommonAppData());
}

std::string cTelemetryController::cacheFolderIn(const std::string& allUsersFolder) {
  // A name alone would be a folder below wherever the saver happens to be started.
  return allUsersFolder.empty() ? "" : xplFileSystemMini::joinPath(allUsersFolder, "Lunaria software");
}

void cTelemetryController::startThread(MakeAnalytics makeAnalytics, const std::string& folder,
                                       bool isAllowed) {
  try {
    m_thread = std::make_unique<std::thread>([this, isAllowed, folder, make = std::move(makeAnalytics)] {
      if (!isAllowed) {
        logInfo().add("telemetry is switched off in the settings: nothing is reported");
        return;
      }
      try {
        doAllSteps(make, folder);
      } catch (const std::exception& error) {
        logError().addf("Exception caught:\n%s\n%s", error.what(), "telemetry thread");
      } catch (...) {  // the vendor's library may throw what it likes
        logError().addf("Exception caught:%s", "telemetry thread");
      }
    });
  } catch (const std::system_error& error) {
    logError().addf("Exception caught:\n%s\n%s", error.what(), "creating telemetry thread");
  }
}
