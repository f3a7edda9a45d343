// What it costs to build the world, its background prepared.
#include <vector>

#include <benchmark/benchmark.h>

#include "graphics/linux/memoryWindow.h"
#include "graphics/window.h"
#include "privateRun.h"
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

BENCHMARK(buildWorld)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

}  // namespace
