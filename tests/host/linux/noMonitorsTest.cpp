// Tests the screen saver object where the platform cannot tell its monitors.
#include <gtest/gtest.h>

#include "graphics/linux/memoryWindow.h"
#include "harness/privateFolders.h"
#include "host/noctisScreensaver.h"

namespace {

class NoMonitors : public PrivateFolders {
 protected:
  MemoryWindow window{{0, 0, 100, 80}, {}};
};

TEST_F(NoMonitors, AreLoggedAsNoneByTheSaverAndAsAnErrorByTheWorld) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(&window, -1);
  EXPECT_EQ(countEntries("Number of monitors:0", "Info"), 1);
  EXPECT_EQ(countEntries("#4714: m_MonitorList size <1", "ERROR"), 1);
}

TEST_F(NoMonitors, LeaveASaverThatDraws) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(&window, -1);
  saver.animateOneFrame(0.04F);
  saver.drawOneFrame();
  saver.flushOneFrame();
  bool anythingShown = false;
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) {
      anythingShown = anythingShown || window.shown().getPixel(x, y).blue() > 0;
    }
  }
  EXPECT_TRUE(anythingShown);
}

}  // namespace
