// How a usage report is broken off, at each of its steps.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

#include <gmock/gmock.h>

#include "services/telemetryFixture.h"

using testing::IsEmpty;

namespace {

TEST_F(Telemetry, AnAbortBeforeTheStartMakesNoCall) {
  auto controller = makeController();
  gate.give(1'000);
  controller->requestAbort();
  gate.open();
  controller.reset();
  EXPECT_THAT(record.calls(), IsEmpty());
  EXPECT_EQ(aborted(1), 1);
  EXPECT_EQ(aborted(2) + aborted(3), 0);
  EXPECT_EQ(gate.now().seconds, 1463865300 + 1);
}

TEST_F(Telemetry, KeptAnAbortDuringTheStartStopsTheSessionAndReportsNoErrors) {
  std::unique_ptr<cTelemetryController> controller;
  std::atomic<cTelemetryController*> shared{nullptr};
  record.duringStart = [&shared] { shared.load()->requestAbort(); };
  record.errorsOfStop = "not to be reported";
  controller = makeController();
  shared = controller.get();
  gate.open();
  record.waitFor("stop");
  controller.reset();
  EXPECT_EQ(names(), Calls({"make", "setFilePath", "createConfig", "start", "takeErrors", "stop"}));
  EXPECT_EQ(aborted(2), 1);
  EXPECT_EQ(aborted(1) + aborted(3), 0);
  EXPECT_EQ(countEntries("Entering: ~xplAppTelemetryTrackerBird()"), 1);
}

TEST_F(Telemetry, AnAbortBeforeTheStopStopsTheSessionOnce) {
  auto controller = makeController();
  gate.give(23'000);
  gate.give(1'000);
  controller->requestAbort();
  gate.open();
  controller.reset();
  EXPECT_EQ(names(), Calls({"make", "setFilePath", "createConfig", "start", "takeErrors", "stop"}));
  EXPECT_EQ(aborted(3), 1);
  EXPECT_EQ(aborted(1) + aborted(2), 0);
}

TEST_F(Telemetry, AnAbortOfAFinishedReportChangesNothing) {
  runThrough();
  EXPECT_EQ(record.calls().size(), 7U);
}

TEST_F(Telemetry, LogsItsLife) {
  auto controller = makeController();
  gate.give(50);
  controller->requestAbort();
  gate.open();
  controller.reset();
  const auto entries = logEntries();
  const std::vector<std::string> last(entries.end() - 8, entries.end());
  // The thread's own line may stand before or after the line before its joining.
  EXPECT_THAT(last, testing::IsSupersetOf({"Entering: creating telemetry thread",
                                           "Exiting: creating telemetry thread",
                                           "telemetry TrackerBird Aborted. Point1"}));
  const auto place = [&last](const std::string& entry) {
    return std::find(last.begin(), last.end(), entry) - last.begin();
  };
  EXPECT_LT(place("Entering: deleting telemetry thread"), place("will call thread->join()"));
  EXPECT_LT(place("will call thread->join()"),
            place("returned from thread->join(). Will call thread delete"));
  EXPECT_EQ(last[6], "returned from thread delete");
  EXPECT_EQ(last[7], "Exiting: deleting telemetry thread");
  EXPECT_EQ(last[5], "returned from thread->join(). Will call thread delete");
}

// A clock that hurries to a moment and goes with the real time from there on.
class HurryingClock : public xplClockSource {
 public:
  explicit HurryingClock(std::int64_t realFrom) : m_realFrom(realFrom) {}
  xplInstant now() override { return m_hands.now(); }
  using xplClockSource::sleep;
  void sleep(unsigned milliseconds) override {
    m_hands.sleep(milliseconds);
    const auto now = m_hands.now();
    if (now.seconds * 1000 + now.microseconds / 1000 > m_realFrom) {
      m_arrived.add("there");
      std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
  }
  void waitUntilThere() { m_arrived.waitFor("there"); }

 private:
  std::int64_t m_realFrom;  // milliseconds
  xplManualClock m_hands{{0, 0}};
  AnalyticsRecord m_arrived;
};

TEST_F(Telemetry, EndsWithin100MillisecondsAtAnyMoment) {
  using Clock = std::chrono::steady_clock;
  for (const std::int64_t moment : {0, 50, 11'000, 22'900, 22'950, 23'000, 25'000, 26'900}) {
    // A busy machine may hold one of them up, but hardly all.
    auto fastest = Clock::duration::max();
    for (int attempt = 0; attempt < 3; ++attempt) {
      HurryingClock hurrying(moment);
      const xplClock::Override override(hurrying);
      auto controller = makeController();
      hurrying.waitUntilThere();
      const auto start = Clock::now();
      controller.reset();
      fastest = std::min(fastest, Clock::now() - start);
    }
    EXPECT_LT(fastest, std::chrono::milliseconds(100)) << moment;
  }
}

}  // namespace
