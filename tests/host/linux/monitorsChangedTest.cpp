// Tests the screen saver object when monitors come and go.
#include <gtest/gtest.h>

#include "graphics/linux/memoryWindow.h"
#include "harness/privateFolders.h"
#include "host/noctisScreensaver.h"

namespace {

class ChangingWindow : public MemoryWindow {
 public:
  ChangingWindow() : MemoryWindow({0, 0, 400, 200}, {}) {}
  std::vector<xplEdges> monitors() const override { return list; }

  std::vector<xplEdges> list{{200, 0, 400, 200}, {0, 0, 200, 200}};
};

class MonitorsChanged : public PrivateFolders {
 protected:
  ChangingWindow window;
};

TEST_F(MonitorsChanged, AreListedAnew) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(&window, 0);
  EXPECT_EQ(countEntries("Number of monitors:2", "Info"), 1);
  window.list = {{0, 0, 200, 200}};
  saver.monitorsChanged();
  EXPECT_EQ(countEntries("The monitors have changed", "Info"), 1);
  EXPECT_EQ(countEntries("Number of monitors:1", "Info"), 1);
  EXPECT_EQ(countEntries("Monitor 0: Left 0, top 0, right 200, bottom 200", "Info"), 1);
}

TEST_F(MonitorsChanged, LeaveASaverThatDraws) {
  noctisScreensaver saver;
  saver.initWithWindowHandle(&window, 0);
  for (const auto& list : {std::vector<xplEdges>{}, std::vector<xplEdges>{{0, 0, 100, 100}}}) {
    window.list = list;
    saver.monitorsChanged();
    saver.animateOneFrame(0.04F);
    saver.drawOneFrame();
    saver.flushOneFrame();
  }
  EXPECT_EQ(countEntries("Number of monitors:0", "Info"), 1);
}

TEST_F(MonitorsChanged, BeforeAWindowIsKnownAreBorne) {
  noctisScreensaver saver;
  saver.monitorsChanged();
  EXPECT_EQ(countEntries("Number of monitors:0", "Info"), 1);
}

}  // namespace
