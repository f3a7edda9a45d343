// One frame beside two plain copies of its bytes.
#include <chrono>
#include <cstdint>
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

#include "graphics/linux/memoryWindow.h"
#include "graphics/window.h"
#include "privateRun.h"
#include "world/noctisWorld.h"

namespace {

double secondsOf(std::chrono::steady_clock::duration duration) {
  return std::chrono::duration<double>(duration).count();
}

// Everything at once: stars on their way to a message, the moon with its text, quotes, airplanes.
void showEverything() {
  for (const char* category : {"showQuotes_Love", "showQuotes_Wisdom", "showQuotes_Advice",
                               "showQuotes_Funny", "showQuotes_WomenVSMen", "showQuotes_Peace"}) {
    xplUserSettings().set(category, true);
  }
}

constexpr int framesUntilAQuoteIsRead = 200;  // 8 seconds: the stars fly until the 20th

// What a frame is measured against: as many bytes copied twice.
class TwoCopies {
 public:
  explicit TwoCopies(std::size_t bytes) : m_first(bytes, 1), m_second(bytes, 2), m_third(bytes, 3) {}

  void make() {
    std::memcpy(m_second.data(), m_first.data(), m_first.size());
    benchmark::DoNotOptimize(m_second.data());
    benchmark::ClobberMemory();
    std::memcpy(m_third.data(), m_second.data(), m_first.size());
    benchmark::DoNotOptimize(m_third.data());
    benchmark::ClobberMemory();
  }

 private:
  std::vector<std::uint8_t> m_first;
  std::vector<std::uint8_t> m_second;
  std::vector<std::uint8_t> m_third;
};

void frame(benchmark::State& state) {
  const PrivateRun run;
  const int width = static_cast<int>(state.range(0));
  const int height = static_cast<int>(state.range(1));
  xplUserSettings().set("background", static_cast<int>(state.range(2)));
  showEverything();
  MemoryWindow native({0, 0, width, height}, {{0, 0, width, height}});
  xplWindow window(&native);
  const std::vector<xplRect<int>> monitors = {xplRect<int>(0, 0, width, height)};
  TnoctisWorld world(&window, 0, monitors, "");
  world.initializeWorld();
  for (int i = 0; i < framesUntilAQuoteIsRead; ++i) {
    world.update(0.04F);
    world.draw();
    window.flush();
  }

  TwoCopies copies(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
  double frameSeconds = 0.0;
  double copySeconds = 0.0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    world.update(0.04F);
    world.draw();
    window.flush();
    const auto drawn = std::chrono::steady_clock::now();
    copies.make();
    const auto copied = std::chrono::steady_clock::now();
    frameSeconds += secondsOf(drawn - start);
    copySeconds += secondsOf(copied - drawn);
    state.SetIterationTime(secondsOf(drawn - start));
  }
  state.counters["ratio"] = frameSeconds / copySeconds;
}

BENCHMARK(frame)
    ->ArgsProduct({{1920}, {1080}, {0, 1, 2, 3}})
    ->ArgsProduct({{3840}, {2160}, {0, 1, 2, 3}})
    ->UseManualTime()
    ->Iterations(200)
    ->Unit(benchmark::kMillisecond);

}  // namespace
