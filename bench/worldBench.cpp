// What it costs to build the world with its background and moon, and to lay out a message.
#include <vector>

#include <benchmark/benchmark.h>

#include "graphics/linux/memoryWindow.h"
#include "graphics/window.h"
#include "privateRun.h"
#include "world/messageProjection.h"
#include "world/noctisWorld.h"

namespace {

void buildWorld(benchmark::State& state) {
  const PrivateRun run;
  MemoryWindow native({0, 0, 1920, 1080}, {{0, 0, 1920, 1080}});
  const std::vector<xplRect<int>> monitors = {xplRect<int>(0, 0, 1920, 1080)};
  xplUserSettings().set("background", static_cast<int>(state.range(0)));
  xplWindow window(&native);
  for (auto _ : state) {
    TnoctisWorld world(&window, 0, monitors, "");
    world.initializeWorld();
    world.draw();
  }
}

void projectText(benchmark::State& state) {
  const PrivateRun run;
  std::vector<sTargetPoint> points;
  for (auto _ : state) {
    projectMessage("The quick brown fox\r\nleaps over the moon", xplRect<int>(0, 0, 1920, 1080), points);
  }
}

BENCHMARK(projectText)->Unit(benchmark::kMillisecond);
BENCHMARK(buildWorld)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

}  // namespace
