// The steps of a usage report: their order, their times, and what becomes of failures.
#include <regex>

#include <gmock/gmock.h>

#include "services/builtInAnalytics.h"
#include "services/telemetryFixture.h"
#include "services/telemetryValues.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

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

TEST_F(Telemetry, KeptTheStopIsABlockOfTheLogWithADestructorsName) {
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

TEST_F(Telemetry, ALibraryThatThrowsAnythingEndsTheReportAlone) {
  auto controller = std::make_unique<cTelemetryController>([&]() -> std::unique_ptr<xpliAnalytics> {
    record.add("make");
    throw 42;
  });
  gate.open();
  record.waitFor("make");
  controller.reset();
  EXPECT_EQ(countEntries("Exception caught:telemetry thread", "ERROR"), 1);
}

// The stand-in, whose last call a test can wait for.
class ObservedStandIn : public BuiltInAnalytics {
 public:
  explicit ObservedStandIn(AnalyticsRecord& record) : m_record(record) {}
  int stop() override {
    const int result = BuiltInAnalytics::stop();
    m_record.add("stop");
    return result;
  }

 private:
  AnalyticsRecord& m_record;
};

class ReportOfTheStandIn : public Telemetry {
 protected:
  void runWithStandIn() {
    auto controller =
        std::make_unique<cTelemetryController>([this] { return std::make_unique<ObservedStandIn>(record); });
    gate.open();
    record.waitFor("stop");
    controller.reset();
  }
};

TEST_F(ReportOfTheStandIn, IsOneLineInTheCacheFolder) {
  runWithStandIn();
  const std::string content = readFile(xplFileSystemMini::joinPath(folder(), "usage.txt"));
  EXPECT_EQ(content.rfind("start=2016-05-21T21:15:23Z stop=2016-05-21T21:15:27Z version=5.4.1 build=", 0), 0U)
      << content;
  EXPECT_TRUE(logWarning().isEmpty());
}

TEST_F(ReportOfTheStandIn, WithoutACacheFolderIsAWarning) {
  writeFile(folder(), "a file in its place");
  runWithStandIn();
  EXPECT_EQ(countEntries("TB invalid path:" + folder(), "Warning"), 1);
}

TEST_F(ReportOfTheStandIn, WithAnythingInItsFilesPlaceIsAWarning) {
  xplFileSystemMini::createFolder(folder());
  xplFileSystemMini::createFolder(xplFileSystemMini::joinPath(folder(), "usage.txt"));
  runWithStandIn();
  EXPECT_EQ(countEntries("TB access denied to path:" + folder(), "Warning"), 1);
}

TEST_F(Telemetry, TheBuildStampHasItsForm) {
  EXPECT_TRUE(
      std::regex_match(telemetryValues::buildStamp(),
                       std::regex("[A-Z][a-z]{2} [ 123][0-9] 20[0-9]{2}  [0-9]{2}:[0-9]{2}:[0-9]{2}")))
      << telemetryValues::buildStamp();
}

}  // namespace
