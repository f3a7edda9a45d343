// Reports one session of use, on a thread of its own, so that the saver never waits for it.
#pragma once

#include <memory>
#include <string>
#include <thread>

#include "services/telemetrySteps.h"

class cTelemetryController : public cTelemetryDoAllSteps_Trackerbird {
 public:
  // Makes the folder for the library's files and starts the thread. Without a thread (the system has none to
  // give) nothing is reported. `makeAnalytics` is called on the thread, and only where the user's settings
  // allow reports.
  explicit cTelemetryController(MakeAnalytics makeAnalytics);
  // Asks the thread to give up and waits for it: one wait step and one call of the library at most.
  ~cTelemetryController();
  cTelemetryController(const cTelemetryController&) = delete;
  cTelemetryController& operator=(const cTelemetryController&) = delete;

  // The folder for the library's files; empty where the system knows no folder for it.
  static std::string cacheFolder();
  // The same, in the folder of all users' application data. Empty where that is:
  // the library then refuses the path, which is logged, and no file is written.
  static std::string cacheFolderIn(const std::string& allUsersFolder);

 private:
  void startThread(MakeAnalytics makeAnalytics, const std::string& folder, bool isAllowed);

  std::unique_ptr<std::thread> m_thread;
};
