// Tests the screen saver object: its log, its life, its frames.
#include <algorithm>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/noctisScreensaver.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int width = 160;
constexpr int height = 120;

class NoctisScreensaver : public PrivateFolders {
 protected:
  // The log's entries since the last call.
  std::vector<std::string> newEntries() {
    const auto all = logEntries();
    const std::vector<std::string> entries(all.begin() + static_cast<std::ptrdiff_t>(m_seen), all.end());
    m_seen = all.size();
    return entries;
  }
  // Those of the entries that are among the wanted ones, in their order.
  static std::vector<std::string> among(const std::vector<std::string>& entries,
                                        const std::vector<std::string>& wanted) {
    std::vector<std::string> found;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(found), [&](const std::string& entry) {
      return std::find(wanted.begin(), wanted.end(), entry) != wanted.end();
    });
    return found;
  }
  std::string handleText() {
    return stringFormat("%X", static_cast<unsigned>(xplHandleNumber(window.handle())));
  }
  // What a viewer sees, row by row.
  std::vector<xplColor> shown() {
    std::vector<xplColor> pixels;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        pixels.push_back(window.shownPixel(x, y));
      }
    }
    return pixels;
  }
  std::vector<xplColor> nextFrame(noctisScreensaver& saver) {
    saver.drawOneFrame();
    saver.flushOneFrame();
    return shown();
  }

  TestWindow window{width, height, 30, 20};

 private:
  std::size_t m_seen = 0;
};

const std::vector<std::string> deletions = {"Deleted startupEffectPtr", "Deleted ncWorldPtr",
                                            "Deleted m_telemetryPtr"};

TEST_F(NoctisScreensaver, LogsItsConstructionAndTheSettingsFiles) {
  const std::string user = xplUserSettings().filename();  // opened here, since that logs too
  const std::string application = xplApplicationSettings().filename();
  newEntries();
  const noctisScreensaver saver;
  EXPECT_THAT(
      newEntries(),
      ElementsAre("creating: xplScreenSaverAbstract", "Program: Lunaria screensaver 5.4.1",
                  "cPreventComputerSleep.changeSettingIfTimeHasExpired()", "creating: noctisScreensaver",
                  "INI file for user settings=" + user, "INI file for app settings=" + application));
}

TEST_F(NoctisScreensaver, LogsItsEndInReverse) {
  auto saver = std::make_unique<noctisScreensaver>();
  newEntries();
  saver.reset();
  EXPECT_THAT(newEntries(),
              ElementsAre("destroying: noctisScreensaver", "destroying: xplScreenSaverAbstract"));
}

TEST_F(NoctisScreensaver, StartsAtItsFrameRateWithASheet) {
  noctisScreensaver saver;
  EXPECT_EQ(saver.targetFrameRate, 25);
  EXPECT_TRUE(saver.hasConfigureSheet());
}

TEST_F(NoctisScreensaver, WithoutAWindowItHasNoSizeAndFramesDoNothing) {
  noctisScreensaver saver;
  newEntries();
  saver.animateOneFrame(0.04F);
  saver.drawOneFrame();
  saver.flushOneFrame();
  saver.eraseBackground();
  EXPECT_EQ(saver.getWidth(), 0);
  EXPECT_EQ(saver.getHeight(), 0);
  EXPECT_THAT(newEntries(), IsEmpty());
}

TEST_F(NoctisScreensaver, HasTheSizeOfItsWindow) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), -1);
  EXPECT_EQ(saver.getWidth(), width);
  EXPECT_EQ(saver.getHeight(), height);
}

TEST_F(NoctisScreensaver, TheContainerFolderIsKeptByTheObjectAndTheProcess) {
  noctisScreensaver saver;
  saver.setContainerFolder("somewhere");
  EXPECT_EQ(noctisScreensaver::processContainerFolder(), "somewhere");
  saver.initWithWindowHandle(window.handle(), -1);
  EXPECT_EQ(countEntries("Screensaver container folder:somewhere", "Info"), 1);
}

TEST_F(NoctisScreensaver, InitialisationLogsItsStepsInOrder) {
  noctisScreensaver saver;
  saver.setContainerFolder("somewhere");
  std::vector<xplRect<int>> monitors;
  ASSERT_TRUE(xplEnumerateMonitors(window.handle(), monitors));
  std::vector<std::string> wanted = {"Entering: noctisScreensaver.initWithWindowHandle()",
                                     "xplScreenSaverAbstract.initWithWindowHandle(" + handleText() + ")",
                                     "xplWindow(wHandle:" + handleText() + ") constructor start",
                                     "TopLeft:30,20 screen width:160, height:120",
                                     "Number of monitors:" + std::to_string(monitors.size())};
  for (std::size_t i = 0; i < monitors.size(); ++i) {
    const auto& monitor = monitors[i];
    wanted.push_back(stringFormat("Monitor %i: Left %i, top %i, right %i, bottom %i", static_cast<int>(i),
                                  monitor.left, monitor.top, monitor.getRight(), monitor.getBottom()));
  }
  wanted.insert(wanted.end(),
                {"Screensaver container folder:somewhere", "Creating TnoctisWorld with monitorId =-1",
                 "Entering: initializeWorld()", "Exiting: initializeWorld()",
                 "Exiting: noctisScreensaver.initWithWindowHandle()"});
  newEntries();
  saver.initWithWindowHandle(window.handle(), -1);
  const auto entries = newEntries();
  EXPECT_EQ(among(entries, wanted), wanted);
  EXPECT_EQ(entries.front(), wanted.front());
  EXPECT_EQ(entries.back(), wanted.back());
}

TEST_F(NoctisScreensaver, TheWorldLearnsWhichRunItIs) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), 0);
  EXPECT_EQ(countEntries("Creating TnoctisWorld with monitorId =0", "Info"), 1);
}

TEST_F(NoctisScreensaver, ANullHandleIsLoggedAndBorne) {
  noctisScreensaver saver;
  newEntries();
  saver.initWithWindowHandle(nullptr, -1);
  const auto entries = newEntries();
  ASSERT_GE(entries.size(), 4U);
  EXPECT_EQ(entries[1], "xplScreenSaverAbstract.initWithWindowHandle(0)");
  EXPECT_EQ(entries[2], "Error: xplWindow(wHandle) with NIL wHandle");
  EXPECT_EQ(countEntries("Error: xplWindow(wHandle) with NIL wHandle", "Info"), 1);
  EXPECT_EQ(saver.getWidth(), 0);
  saver.animateOneFrame(0.04F);
  saver.drawOneFrame();
  saver.flushOneFrame();
}

TEST_F(NoctisScreensaver, AFrameReachesTheWindowWhenItIsFlushed) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), -1);
  const auto before = shown();
  saver.drawOneFrame();
  EXPECT_TRUE(shown() == before);
  saver.flushOneFrame();
  EXPECT_FALSE(shown() == before);
}

TEST_F(NoctisScreensaver, OnlyTicksMoveTheSky) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), -1);
  const auto first = nextFrame(saver);
  EXPECT_TRUE(nextFrame(saver) == first);
  for (int tick = 0; tick < 25; ++tick) {
    saver.animateOneFrame(0.04F);
  }
  EXPECT_FALSE(nextFrame(saver) == first);
}

TEST_F(NoctisScreensaver, WithoutAStartupEffectTheDesktopStaysPreservedForTheWholeRun) {
  noctisScreensaver saver;
  EXPECT_TRUE(saver.getPreserveDesktopContents());
  saver.initWithWindowHandle(window.handle(), -1);
  saver.animateOneFrame(0.04F);
  nextFrame(saver);
  EXPECT_TRUE(saver.getPreserveDesktopContents());
  saver.shutDown();
  EXPECT_TRUE(saver.getPreserveDesktopContents());
}

TEST_F(NoctisScreensaver, PreservingTheDesktopCanBeSet) {
  noctisScreensaver saver;
  saver.setPreserveDesktopContents(false);
  EXPECT_FALSE(saver.getPreserveDesktopContents());
}

TEST_F(NoctisScreensaver, ShuttingDownDeletesTheWorldAndLogsTheThreeLines) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), -1);
  newEntries();
  saver.shutDown();
  const auto entries = newEntries();
  const std::vector<std::string> wanted = {
      "Entering: noctisScreensaver.shutDown()", deletions[0], "Entering: TnoctisWorld.destructor()",
      "Exiting: TnoctisWorld.destructor()",     deletions[1], deletions[2],
      "Exiting: noctisScreensaver.shutDown()"};
  EXPECT_EQ(among(entries, wanted), wanted);
}

TEST_F(NoctisScreensaver, AfterShuttingDownFramesDoNothing) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), -1);
  const auto last = nextFrame(saver);
  saver.shutDown();
  saver.animateOneFrame(1.0F);
  EXPECT_TRUE(nextFrame(saver) == last);
}

TEST_F(NoctisScreensaver, ShuttingDownWithoutAnInitialisationLogsTheThreeLinesAlone) {
  noctisScreensaver saver;
  newEntries();
  saver.shutDown();
  EXPECT_THAT(newEntries(), ElementsAre("Entering: noctisScreensaver.shutDown()", deletions[0], deletions[1],
                                        deletions[2], "Exiting: noctisScreensaver.shutDown()"));
}

TEST_F(NoctisScreensaver, KeptASecondInitialisationIsAnErrorAndReplacesTheWorld) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), -1);
  newEntries();
  saver.initWithWindowHandle(window.handle(), -1);
  EXPECT_EQ(countEntries("noctisScreensaver.initWithWindowHandle(): ncWorldPtr is not NULL", "ERROR"), 1);
  EXPECT_EQ(countEntries("Creating TnoctisWorld with monitorId =-1"), 2);
  EXPECT_EQ(countEntries("xplWindow(wHandle:" + handleText() + ") constructor start"), 1);
  EXPECT_EQ(countEntries("Entering: TnoctisWorld.destructor()"), 0);
  nextFrame(saver);
}

TEST_F(NoctisScreensaver, ASecondInitialisationListsTheMonitorsAgain) {
  std::vector<xplRect<int>> monitors;
  ASSERT_TRUE(xplEnumerateMonitors(window.handle(), monitors));
  noctisScreensaver saver;
  saver.initWithWindowHandle(window.handle(), -1);
  saver.initWithWindowHandle(window.handle(), -1);
  EXPECT_EQ(countEntries("Number of monitors:" + std::to_string(2 * monitors.size())), 1);
}

}  // namespace
