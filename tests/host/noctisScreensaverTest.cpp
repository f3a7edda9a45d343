// Tests the screen saver object: its beginning, its window, its frames.
#include <gmock/gmock.h>

#include "noctisScreensaverFixture.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

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
