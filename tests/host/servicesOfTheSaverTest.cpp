// How the saver starts, keeps and ends its services.
#include <algorithm>
#include <chrono>
#include <thread>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/noctisScreensaver.h"
#include "services/recordingServices.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ServicesOfTheSaver : public PrivateFolders {
 protected:
  std::unique_ptr<noctisScreensaver> makeSaver() { return makeSaver(recorders()); }
  std::unique_ptr<noctisScreensaver> makeQuietSaver() { return makeSaver(recorders().besideAnotherRun()); }
  // A whole run during which it strikes nine in the evening.
  void runOverTheHour(noctisScreensaver& saver) {
    setLocalTime(20, 59, 59);
    saver.initWithWindowHandle(window.handle(), 0);
    saver.animateOneFrame(2.0F);
    setLocalTime(21, 0, 1);
    saver.animateOneFrame(2.0F);
    saver.shutDown();
  }
  // The place of an entry in the log; its length where there is none.
  std::ptrdiff_t place(const std::string& entry) const {
    const auto entries = logEntries();
    return std::find(entries.begin(), entries.end(), entry) - entries.begin();
  }
  bool isLogged(const std::string& entry) const { return countEntries(entry) > 0; }

  Calls sounds;
  KeepAwakeRecord awake;
  AnalyticsRecord report;
  TestWindow window{160, 120, 30, 20};

 private:
  xplServices recorders() {
    xplServices services;
    services.makeSoundOutput = [this] { return std::make_unique<RecordingSound>(sounds); };
    services.makeKeepAwake = [this] { return std::make_unique<RecordingKeepAwake>(awake); };
    services.makeAnalytics = [this](const std::string& folder) {
      report.add("make in " + folder);
      return std::make_unique<RecordingAnalytics>(report);
    };
    return services;
  }
  static std::unique_ptr<noctisScreensaver> makeSaver(xplServices services) {
    auto saver = std::make_unique<noctisScreensaver>(std::move(services));
    saver->setContainerFolder("somewhere");
    return saver;
  }
};

// The report's waiting takes its time on this one.
class RealSleep : public xplClockSource {
 public:
  xplInstant now() override { return {1463865300, 0}; }
  using xplClockSource::sleep;
  void sleep(unsigned milliseconds) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }
};

constexpr char startsReport[] = "Entering: creating telemetry thread";
constexpr char endsReport[] = "Exiting: deleting telemetry thread";

TEST_F(ServicesOfTheSaver, AFullRunIsReportedFromTheProgramsFolder) {
  const auto saver = makeSaver();
  saver->initWithWindowHandle(window.handle(), 0);
  report.waitFor("stop");
  EXPECT_EQ(report.calls().front(), "make in somewhere");
  EXPECT_LT(place("Creating TnoctisWorld with monitorId =0"), place(startsReport));
  EXPECT_LT(place(startsReport), place("Entering: initializeWorld()"));
}

TEST_F(ServicesOfTheSaver, APreviewIsNotReportedAndIsSilent) {
  xplUserSettings().set("snd_selectedSound", 1);
  const auto saver = makeSaver();
  saver->initWithWindowHandle(window.handle(), -1);
  saver->animateOneFrame(0.04F);
  saver->shutDown();
  EXPECT_FALSE(isLogged(startsReport));
  EXPECT_THAT(report.calls(), IsEmpty());
  EXPECT_THAT(sounds, IsEmpty());
}

TEST_F(ServicesOfTheSaver, KeptOneWindowNumberIsReportedInAnyRun) {
  EXPECT_TRUE(noctisScreensaver::isRunReported(-1, 0x1903F4));
  EXPECT_FALSE(noctisScreensaver::isRunReported(-1, 0x1903F3));
  EXPECT_FALSE(noctisScreensaver::isRunReported(-1, 0x1903F5));
  EXPECT_FALSE(noctisScreensaver::isRunReported(-1, 0));
  EXPECT_FALSE(noctisScreensaver::isRunReported(1, 0));
  EXPECT_TRUE(noctisScreensaver::isRunReported(0, 0));
}

TEST_F(ServicesOfTheSaver, ASecondInitialisationKeepsTheReport) {
  const auto saver = makeSaver();
  saver->initWithWindowHandle(window.handle(), 0);
  saver->initWithWindowHandle(window.handle(), 0);
  EXPECT_EQ(countEntries(startsReport), 1);
}

TEST_F(ServicesOfTheSaver, TheEndOfTheReportComesAfterTheWorlds) {
  const auto saver = makeSaver();
  saver->initWithWindowHandle(window.handle(), 0);
  saver->shutDown();
  EXPECT_LT(place("Deleted ncWorldPtr"), place("Entering: deleting telemetry thread"));
  EXPECT_LT(place(endsReport), place("Deleted m_telemetryPtr"));
  EXPECT_TRUE(isLogged("Deleted m_telemetryPtr"));
}

TEST_F(ServicesOfTheSaver, TheEndOfTheRunBreaksAWaitingReportOff) {
  RealSleep real;
  const xplClock::Override override(real);
  const auto saver = makeSaver();
  saver->initWithWindowHandle(window.handle(), 0);
  saver->shutDown();
  EXPECT_TRUE(isLogged("telemetry TrackerBird Aborted. Point1"));
  EXPECT_THAT(report.calls(), IsEmpty());
}

TEST_F(ServicesOfTheSaver, PlaysTheBackgroundSoundUntilItShutsDown) {
  xplUserSettings().set("snd_selectedSound", 2);
  const auto saver = makeSaver();
  saver->initWithWindowHandle(window.handle(), 0);
  EXPECT_THAT(sounds, ElementsAre("stop", "play 115"));
  saver->shutDown();
  EXPECT_THAT(sounds, ElementsAre("stop", "play 115", "stop"));
}

TEST_F(ServicesOfTheSaver, PreventsSleepFromItsConstructionToItsEnd) {
  xplUserSettings().set("preventComputerSleep", 3);
  auto saver = makeSaver();
  EXPECT_THAT(awake.calls, ElementsAre("request"));
  EXPECT_LT(place("cPreventComputerSleep calls preventIdleSleep()"), place("creating: noctisScreensaver"));
  saver->initWithWindowHandle(window.handle(), -1);
  saver->shutDown();
  EXPECT_THAT(awake.calls, ElementsAre("request"));
  saver.reset();
  EXPECT_THAT(awake.calls, ElementsAre("request", "release"));
  EXPECT_EQ(countEntries("cPreventComputerSleep calls restoreIdleSleep()", "Info"), 1);
  EXPECT_LT(place("cPreventComputerSleep calls restoreIdleSleep()"), place("destroying: noctisScreensaver"));
}

TEST_F(ServicesOfTheSaver, EachFrameOfTheWorldIsATickOfTheSleepPrevention) {
  xplUserSettings().set("preventComputerSleep", 1);
  xplUserSettings().set("preventComputerSleepUntilUTCtime_inMinutes", clock.now().seconds / 60 + 100);
  xplUserSettings().set("sisableTelemetry", true);
  const auto saver = makeSaver();
  for (int frame = 0; frame < 1501; ++frame) {
    saver->animateOneFrame(0.04F);
  }
  EXPECT_FALSE(isLogged("cPreventComputerSleep is tick time")) << "without a world there are no frames";
  saver->initWithWindowHandle(window.handle(), -1);
  for (int frame = 0; frame < 1500; ++frame) {
    saver->animateOneFrame(0.04F);
  }
  EXPECT_FALSE(isLogged("cPreventComputerSleep is tick time"));
  saver->animateOneFrame(0.04F);
  EXPECT_TRUE(isLogged("cPreventComputerSleep is tick time"));
}

TEST_F(ServicesOfTheSaver, BesideAnotherRunItIsSilent) {
  xplUserSettings().set("snd_selectedSound", 2);
  xplUserSettings().set("snd_cookooEveryHour", true);
  xplUserSettings().set("sisableTelemetry", true);  // its waiting would move the clock
  runOverTheHour(*makeQuietSaver());
  EXPECT_THAT(sounds, IsEmpty());
  runOverTheHour(*makeSaver());
  EXPECT_THAT(sounds, ElementsAre("stop", "play 115", "stop", "stop", "play 111", "stop"));
}

TEST_F(ServicesOfTheSaver, BesideAnotherRunItPreventsSleep) {
  xplUserSettings().set("preventComputerSleep", 3);
  makeQuietSaver().reset();
  EXPECT_THAT(awake.calls, ElementsAre("request", "release"));
}

TEST_F(ServicesOfTheSaver, WithoutServicesItRunsAllTheSame) {
  xplUserSettings().set("snd_selectedSound", 2);
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), 0);
  saver.animateOneFrame(0.04F);
  saver.shutDown();
  EXPECT_FALSE(isLogged(startsReport));
  EXPECT_THAT(sounds, IsEmpty());
}

}  // namespace
