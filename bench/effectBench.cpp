// The frames of the old television, from the desktop to the last dot.
#include <algorithm>
#include <chrono>

#include <benchmark/benchmark.h>

#include "graphics/linux/memoryWindow.h"
#include "graphics/window.h"
#include "privateRun.h"
#include "world/oldTvEffect.h"

namespace {

double secondsOf(std::chrono::steady_clock::duration duration) {
  return std::chrono::duration<double>(duration).count();
}

// An iteration is a whole effect; its time is that of the mean frame.
void oldTvFrame(benchmark::State& state) {
  const PrivateRun run;
  const int width = static_cast<int>(state.range(0));
  const int height = static_cast<int>(state.range(1));
  MemoryWindow native({0, 0, width, height}, {{0, 0, width, height}});
  double slowest = 0.0;
  for (auto _ : state) {
    xplWindow window(&native);
    sOldTvProgress progress;
    cWindowTransitionEffect_OldTV effect(progress);
    effect.initWithWindow(&window, 0);
    double all = 0.0;
    int frames = 0;
    while (!effect.finished()) {
      const auto start = std::chrono::steady_clock::now();
      effect.draw();
      const double seconds = secondsOf(std::chrono::steady_clock::now() - start);
      slowest = std::max(slowest, seconds);
      all += seconds;
      ++frames;
    }
    state.SetIterationTime(all / frames);
  }
  state.counters["slowest_ms"] = slowest * 1000.0;
}

BENCHMARK(oldTvFrame)
    ->Args({1920, 1080})
    ->Args({3840, 2160})
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);

}  // namespace
