// What the tests of the world share: two monitors and a window of any size with a world on it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "harness/privateFolders.h"
#include "support/random.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"
#include "world/noctisWorld.h"

class World : public PrivateFolders {
 protected:
  // Each call replaces the window: the world of an earlier call must be gone by then.
  std::unique_ptr<TnoctisWorld> makeWorld(int width = 640, int height = 480, int left = 0, int top = 0,
                                          std::int32_t monitorId = 0) {
    window.reset();
    native = std::make_unique<TestWindow>(width, height, left, top);
    window = std::make_unique<xplWindow>(native->handle());
    return std::make_unique<TnoctisWorld>(window.get(), monitorId, monitors, "folder");
  }

  // Only stars and the background; for worlds that are made from now on.
  static void leaveOnlyStars() {
    xplUserSettings().set("msg_defaultMessagesAdded", true);
    xplUserSettings().set("showMoon", false);
  }

  std::vector<xplRect<int>> monitors = {xplRect<int>(10, 20, 320, 240), xplRect<int>(0, 340, 100, 100)};
  std::unique_ptr<TestWindow> native;
  std::unique_ptr<xplWindow> window;
};
