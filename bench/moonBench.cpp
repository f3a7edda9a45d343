// What it costs to darken the moon's picture, and a frame of its label.
#include <benchmark/benchmark.h>

#include "graphics/image.h"
#include "moon/moonShading.h"
#include "privateRun.h"

namespace {

void shadeMoonPicture(benchmark::State& state) {
  const PrivateRun run;
  const int size = static_cast<int>(state.range(0));
  for (auto _ : state) {
    xplImage image;
    image.initWithSizeAndColor(size, size, {200, 190, 180});
    shadeMoon(image, static_cast<float>(size), static_cast<float>(size), 40);
  }
}

BENCHMARK(shadeMoonPicture)->Arg(50)->Arg(100)->Arg(200)->Arg(300)->Unit(benchmark::kMillisecond);

}  // namespace
