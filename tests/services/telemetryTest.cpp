// The steps of a usage report: their order, their times, and how they are broken off.
#include <algorithm>
#include <chrono>
#include <regex>
#include <thread>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "recordingServices.h"
#include "services/telemetryController.h"
#include "services/telemetryValues.h"
#include "support/fileSystem.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Telemetry : public PrivateFolders {
 protected:
  std::unique_ptr<cTelemetryController> makeController() {
    return std::make_unique<cTelemetryController>([this] {
      record.add("make");
      return std::make_unique<RecordingAnalytics>(record);
    });
  }
  // Lets the report run to its end.
  void runThrough() {
    auto controller = makeController();
    gate.open();
    record.waitFor("stop");
    controller.reset();
  }
  // The calls, the first words alone.
  Calls names() const {
    Calls names;
    for (const auto& call : record.calls()) {
      names.push_back(call.substr(0, call.find(' ')));
    }
    return names;
  }
  static std::string folder() {
    return xplFileSystemMini::joinPath(xplFileSystemMini::getFolderByKind(1), "Lunaria software");
  }
  int aborted(int point) const {
    return countEntries("telemetry TrackerBird Aborted. Point" + std::to_string(point), "Info");
  }

  AnalyticsRecord record;
  GatedClock gate{{1463865300, 0}};
  xplClock::Override gateOverride{gate};
};

TEST_F(Telemetry, MakesTheCallsInThisOrder) {
  runThrough();
  EXPECT_THAT(record.calls(), ElementsAre("make", "setFilePath " + folder(),
                                          "createConfig reports.lunaria.invalid 4501782936 5.4.1 " +
                                              telemetryValues::buildStamp() + " false",
                                          "start", "takeErrors", "stop", "takeErrors"));
  EXPECT_EQ(aborted(1) + aborted(2) + aborted(3), 0);
}

TEST_F(Telemetry, StartsAfter23SecondsAndStopsAfter4More) {
  const auto controller = makeController();
  gate.give(22'950);
  EXPECT_THAT(record.calls(), IsEmpty());
  gate.give(50);
  EXPECT_THAT(names(), ElementsAre("make", "setFilePath", "createConfig", "start", "takeErrors"));
  gate.give(3'950);
  EXPECT_EQ(record.calls().size(), 5U);
  gate.open();
  record.waitFor("stop");
  EXPECT_EQ(gate.now().seconds, 1463865300 + 27);
}

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

TEST_F(Telemetry, AnAbortDuringTheStartStopsTheSession) {
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

TEST_F(Telemetry, APathThatTheLibraryRefusesIsAWarningAndTheSessionStarts) {
  record.pathResult = -11;
  runThrough();
  EXPECT_EQ(countEntries("TB access denied to path:" + folder(), "Warning"), 1);
  EXPECT_THAT(names(), testing::Contains("start"));
}

TEST_F(Telemetry, AnInvalidPathIsAWarningAndTheSessionStarts) {
  record.pathResult = -10;
  runThrough();
  EXPECT_EQ(countEntries("TB invalid path:" + folder(), "Warning"), 1);
  EXPECT_THAT(names(), testing::Contains("start"));
}

TEST_F(Telemetry, KeptOtherResultsForThePathAreNotLookedAt) {
  record.pathResult = -12;
  runThrough();
  EXPECT_EQ(logText().find("TB "), std::string::npos);
  EXPECT_TRUE(logWarning().isEmpty());
}

TEST_F(Telemetry, PendingErrorsAreReportedAfterTheStartAndAfterTheStop) {
  record.errorsOfStart = "no start";
  record.errorsOfStop = "no stop";
  runThrough();
  EXPECT_EQ(countEntries("#7592a: Errors in m_telemetryPtr:no start", "Warning"), 1);
  EXPECT_EQ(countEntries("#7592a: Errors in m_telemetryPtr:no stop", "Warning"), 1);
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

TEST_F(Telemetry, TheStopIsABlockOfTheLog) {
  runThrough();
  EXPECT_EQ(countEntries("Entering: ~xplAppTelemetryTrackerBird()", "Info"), 1);
  EXPECT_EQ(countEntries("Exiting: ~xplAppTelemetryTrackerBird()", "Info"), 1);
}

TEST_F(Telemetry, MakesTheCacheFolder) {
  EXPECT_FALSE(xplFileSystemMini::folderExists(folder()));
  const auto controller = makeController();
  EXPECT_TRUE(xplFileSystemMini::folderExists(folder()));
  EXPECT_EQ(cTelemetryController::cacheFolder(), folder());
  gate.open();
}

TEST_F(Telemetry, ACacheFolderThatCannotBeMadeIsBorne) {
  writeFile(folder(), "a file in its place");
  runThrough();
  EXPECT_EQ(names().size(), 7U);
}

TEST_F(Telemetry, SwitchedOffItMakesNoCallAndSaysSo) {
  xplUserSettings().set("sisableTelemetry", true);
  auto controller = makeController();
  gate.open();
  controller.reset();
  EXPECT_THAT(record.calls(), IsEmpty());
  EXPECT_EQ(countEntries("telemetry is switched off in the settings: nothing is reported", "Info"), 1);
}

TEST_F(Telemetry, WithoutALibraryItEnds) {
  bool asked = false;
  auto controller = std::make_unique<cTelemetryController>([&] {
    asked = true;
    record.add("stop");
    return nullptr;
  });
  gate.open();
  record.waitFor("stop");
  controller.reset();
  EXPECT_TRUE(asked);
}

TEST_F(Telemetry, ALibraryThatThrowsEndsTheReportAlone) {
  auto controller = std::make_unique<cTelemetryController>([&]() -> std::unique_ptr<xpliAnalytics> {
    record.add("make");
    throw std::runtime_error("broken");
  });
  gate.open();
  record.waitFor("make");
  controller.reset();
  EXPECT_EQ(countEntries("Exception caught:\nbroken\ntelemetry thread", "ERROR"), 1);
}

TEST_F(Telemetry, TheBuildStampHasItsForm) {
  EXPECT_TRUE(
      std::regex_match(telemetryValues::buildStamp(),
                       std::regex("[A-Z][a-z]{2} [ 123][0-9] 20[0-9]{2}  [0-9]{2}:[0-9]{2}:[0-9]{2}")))
      << telemetryValues::buildStamp();
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
