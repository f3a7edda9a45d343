// What the tests of the moon, its text and the quotes in the world share: a world with all three on plain
// blue.
#pragma once

#include <cstdint>
#include <memory>

#include "worldFixture.h"

class WorldLabels : public World {
 protected:
  WorldLabels() {
    xplUserSettings().set("background", 0);
    xplUserSettings().set("msg_defaultMessagesAdded", true);
    xplUserSettings().set("moonSize", 50);
  }

  std::unique_ptr<TnoctisWorld> initializedWorld(int width = 640, int height = 480,
                                                 std::int32_t monitorId = 0, int left = 0, int top = 0) {
    auto world = makeWorld(width, height, left, top, monitorId);
    world->initializeWorld();
    return world;
  }

  void useOneMonitor(int left, int top, int width, int height) {
    monitors = {xplRect<int>(top, left, width, height)};
  }
};
