// Tests the screen saver object: its log, its life, its frames.
#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/noctisScreensaver.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class NoctisScreensaver : public PrivateFolders {
 protected:
  // The log's entries since the last call.
  std::vector<std::string> newEntries() {
    const auto all = logEntries();
    const std::vector<std::string> entries(all.begin() + static_cast<std::ptrdiff_t>(m_seen), all.end());
    m_seen = all.size();
    return entries;
  }
  // Whether these entries appear in this order, others between them allowed.
  static bool inOrder(const std::vector<std::string>& entries, const std::vector<std::string>& wanted) {
    std::size_t found = 0;
    for (const auto& entry : entries) {
      found += found < wanted.size() && entry == wanted[found] ? 1 : 0;
    }
    return found == wanted.size();
  }
  std::string handleText() {
    return stringFormat("%X", static_cast<unsigned>(xplHandleNumber(window.handle())));
  }

  TestWindow window{160, 120};

 private:
  std::size_t m_seen = 0;
};

TEST_F(NoctisScreensaver, LogsItsConstructionAndTheSettingsFiles) {
  xplUserSettings();  // loading them logs too, and is not asked about here
  xplApplicationSettings();
  newEntries();
  noctisScreensaver saver;
  EXPECT_THAT(newEntries(), ElementsAre("creating: xplScreenSaverAbstract",
                                        "Program: Lunaria screensaver 5.4.1", "creating: noctisScreensaver",
                                        "INI file for user settings=" + xplUserSettings().filename(),
                                        "INI file for app settings=" + xplApplicationSettings().filename()));
}

TEST_F(NoctisScreensaver, LogsItsEndInReverse) {
  auto saver = std::make_unique<noctisScreensaver>();
  newEntries();
  saver.reset();
  EXPECT_THAT(newEntries(),
              ElementsAre("destroying: noctisScreensaver", "destroying: xplScreenSaverAbstract"));
}

TEST_F(NoctisScreensaver, StartsWithTheFrameRateAndKeepsTheDesktop) {
  noctisScreensaver saver;
  EXPECT_EQ(saver.targetFrameRate, 25);
  EXPECT_TRUE(saver.getPreserveDesktopContents());
  saver.setPreserveDesktopContents(false);
  EXPECT_FALSE(saver.getPreserveDesktopContents());
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
  EXPECT_TRUE(newEntries().empty());
}

TEST_F(NoctisScreensaver, ContainerFolderIsSetInTheObjectAndInTheProcess) {
  noctisScreensaver saver;
  saver.setContainerFolder("somewhere");
  EXPECT_EQ(noctisScreensaver::processContainerFolder(), "somewhere");
  saver.initWithWindowHandle(window.handle(), -1);
  EXPECT_EQ(countEntries("Screensaver container folder:somewhere", "Info"), 1);
}

TEST_F(NoctisScreensaver, InitialisationLogsItsStepsInOrder) {
  noctisScreensaver saver;
  saver.setContainerFolder("somewhere");
  newEntries();
  saver.initWithWindowHandle(window.handle(), -1);
  const xplEdgesOfWindow place(window.handle());
  const auto entries = newEntries();
  ASSERT_GE(entries.size(), 8U);
  EXPECT_EQ(entries[0], "Entering: noctisScreensaver.initWithWindowHandle()");
  EXPECT_EQ(entries[1], "xplScreenSaverAbstract.initWithWindowHandle(" + handleText() + ")");
  EXPECT_EQ(entries[2], "xplWindow(wHandle:" + handleText() + ") constructor start");
  EXPECT_EQ(entries.back(), "Exiting: noctisScreensaver.initWithWindowHandle()");
  EXPECT_TRUE(
      inOrder(entries, {"Screensaver container folder:somewhere", "Creating TnoctisWorld with monitorId =-1",
                        "Entering: initializeWorld()", "Exiting: initializeWorld()"}));
}

}  // namespace
