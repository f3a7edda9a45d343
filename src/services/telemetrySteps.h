// The steps of a usage report, which run on a thread of their own: wait, start a session, wait, stop it.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "services/analytics.h"
#include "support/clock.h"

// How the steps wait, and how they are told to give up.
class cTelemetryDoAllSteps {
 public:
  // Asks the steps to end as soon as they notice, within one wait step. May be called from any thread.
  void requestAbort() {
    m_abortRequested.exchange(true);
    m_wakeUp.ring();
  }

 protected:
  cTelemetryDoAllSteps() = default;
  ~cTelemetryDoAllSteps() = default;

  bool abortRequested() const { return m_abortRequested.load(); }
  // Waits so many milliseconds, less where an abort is asked for, up to one step more where it is not.
  void waitInterruptibly(std::int64_t milliseconds);

 private:
  std::atomic<bool> m_abortRequested{false};
  xplWakeUp m_wakeUp;  // only shortens the step that is under way
};

// The steps with the library of this name.
class cTelemetryDoAllSteps_Trackerbird : public cTelemetryDoAllSteps {
 public:
  // Makes the library when the first call is due; null where there is none, which ends the steps.
  using MakeAnalytics = std::function<std::unique_ptr<xpliAnalytics>()>;

 protected:
  cTelemetryDoAllSteps_Trackerbird() = default;
  ~cTelemetryDoAllSteps_Trackerbird() = default;

  // cacheFolder: where the library may keep its files.
  void doAllSteps(const MakeAnalytics& makeAnalytics, const std::string& cacheFolder);

 private:
  void doSession(xpliAnalytics& library, const std::string& cacheFolder);
};
