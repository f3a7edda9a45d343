// What it costs to read and save settings.
#include <string>

#include <benchmark/benchmark.h>

#include "privateRun.h"
#include "support/settingsFormat.h"

namespace {

std::map<std::string, std::string> manyValues(std::int64_t count) {
  std::map<std::string, std::string> values;
  for (std::int64_t i = 0; i < count; ++i) {
    values["message" + std::to_string(i)] = "A message\r\nwith two lines = " + std::to_string(i);
  }
  return values;
}

void parse(benchmark::State& state) {
  const std::string text = formatSettings(manyValues(state.range(0)), "\n");
  for (auto _ : state) {
    std::map<std::string, std::string> values;
    parseSettings(text, values);
    benchmark::DoNotOptimize(values);
  }
}
BENCHMARK(parse)->Arg(30)->Arg(3000);

void format(benchmark::State& state) {
  const auto values = manyValues(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(formatSettings(values, "\n"));
  }
}
BENCHMARK(format)->Arg(30)->Arg(3000);

void saveToDisk(benchmark::State& state) {
  const PrivateRun run;
  xplSettings store(xplSettings::scopeUser);
  int value = 0;
  for (auto _ : state) {
    store.set("activeDialogTab", ++value);
  }
}
BENCHMARK(saveToDisk)->Unit(benchmark::kMicrosecond);

}  // namespace
