// Tests the end of the screen saver object, and what a second initialisation does to it.
#include <gmock/gmock.h>

#include "noctisScreensaverFixture.h"

using testing::ElementsAre;

namespace {

const std::vector<std::string> deletions = {"Deleted startupEffectPtr", "Deleted ncWorldPtr",
                                            "Deleted m_telemetryPtr"};

}  // namespace

TEST_F(NoctisScreensaver, LogsItsEndInReverse) {
  auto saver = std::make_unique<noctisScreensaver>();
  newEntries();
  saver.reset();
  EXPECT_THAT(newEntries(),
              ElementsAre("destroying: noctisScreensaver", "destroying: xplScreenSaverAbstract"));
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
