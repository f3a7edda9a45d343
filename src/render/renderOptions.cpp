// Reads the command line of lunaria-render.
#include "render/renderOptions.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <functional>
#include <map>

namespace {

constexpr int maxSize = 16384;
constexpr double maxSeconds = 1.0e7;

const char* const usage =
    "lunaria-render: draws Lunaria's night sky without a display.\n"
    "\n"
    "  --size WxH       size of the picture in pixels (1920x1080)\n"
    "  --seed N         start of the random numbers, 0 to 4294967295 (1)\n"
    "  --time MOMENT    when the run begins, UTC, as 2026-11-21T20:00:00 (now)\n"
    "  --at SECONDS     let the sky run this long before the first frame that is written (0)\n"
    "  --frames N       write N frames; the output name holds the number, as in sky-%05d.png\n"
    "  --settings FILE  use the choices of this settings file (the defaults)\n"
    "  --quotes FILE    use this file of quotations, one a line\n"
    "  --preview        draw what the small preview shows\n"
    "  --hashes         print a line for each frame: number, state of the random numbers, hash of the "
    "pixels\n"
    "  --raw            write frames as bytes, blue, green, red and 255 for each pixel, one frame after "
    "another\n"
    "  -o FILE          where to write; - is standard output\n"
    "  --help, --version\n"
    "\n"
    "The same options give the same frames. It plays no sound, sends nothing, and writes only FILE.\n";

RenderRequest failure(const std::string& what) {
  return {std::nullopt, "lunaria-render: " + what + "\n\n" + usage, 1};
}

template <class T>
bool parseNumber(const std::string& text, T lowest, T highest, T& result) {
  T value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  // Negated so that a floating NaN is refused as well.
  if (error != std::errc{} || end != text.data() + text.size() || !(value >= lowest && value <= highest)) {
    return false;
  }
  result = value;
  return true;
}

bool parseSize(const std::string& text, RenderOptions& options) {
  const auto cross = text.find('x');
  return cross != std::string::npos && parseNumber(text.substr(0, cross), 1, maxSize, options.width) &&
         parseNumber(text.substr(cross + 1), 1, maxSize, options.height);
}

using Reader = std::function<bool(const std::string&, RenderOptions&)>;

const std::map<std::string, Reader>& readersOfValues() {
  static const std::map<std::string, Reader> readers = {
      {"--size", parseSize},
      {"--seed",
       [](const std::string& text, RenderOptions& options) {
         return parseNumber<std::uint32_t>(text, 0, UINT32_MAX, options.seed);
       }},
      {"--time",
       [](const std::string& text, RenderOptions& options) {
         options.time = parseIsoTime(text);
         return options.time.has_value();
       }},
      {"--at", [](const std::string& text,
                  RenderOptions& options) { return parseNumber(text, 0.0, maxSeconds, options.atSeconds); }},
      {"--frames",
       [](const std::string& text, RenderOptions& options) {
         options.frames = 0;
         return parseNumber(text, 1, 100'000'000, *options.frames);
       }},
      {"--settings", [](const std::string& text,
                        RenderOptions& options) { return !(options.settingsFile = text).empty(); }},
      {"--quotes",
       [](const std::string& text, RenderOptions& options) { return !(options.quotesFile = text).empty(); }},
      {"-o",
       [](const std::string& text, RenderOptions& options) { return !(options.output = text).empty(); }},
  };
  return readers;
}

// True where the name holds exactly one place for the frame's number: %d, or %0Nd with N one digit.
bool holdsFrameNumber(const std::string& name) {
  const auto percent = name.find('%');
  if (percent == std::string::npos || name.find('%', percent + 1) != std::string::npos) {
    return false;
  }
  const std::string rest = name.substr(percent + 1);
  return rest.rfind('d', 0) == 0 ||
         (rest.size() >= 3 && rest[0] == '0' && rest[1] >= '1' && rest[1] <= '9' && rest[2] == 'd');
}

// Empty where the options go together.
std::string contradictionIn(const RenderOptions& options) {
  if (options.output.empty()) {
    return options.hashes ? "" : "where to write? Name a file with -o, or - for standard output";
  }
  if (options.hashes && options.output == "-") {
    return "--hashes prints on standard output: write the frames to a file with -o FILE";
  }
  if (options.frames.value_or(1) > 1 && !options.raw && !holdsFrameNumber(options.output)) {
    return "--frames needs a number in the output name, such as -o sky-%05d.png, or --raw";
  }
  return "";
}

}  // namespace

std::optional<std::int64_t> parseIsoTime(const std::string& text) {
  using namespace std::chrono;
  // The places of year, month, day, hour, minute and second in the text, with their widths and ranges.
  struct Field {
    std::size_t position;
    std::size_t width;
    int lowest;
    int highest;
  };
  constexpr std::array<Field, 6> fields = {
      {{0, 4, 0, 9999}, {5, 2, 1, 12}, {8, 2, 1, 31}, {11, 2, 0, 23}, {14, 2, 0, 59}, {17, 2, 0, 59}}};
  std::string moment = text;
  if (!moment.empty() && moment.back() == 'Z') {
    moment.pop_back();
  }
  if (moment.size() == 16) {
    moment += ":00";
  }
  if (moment.size() != 19 || moment[4] != '-' || moment[7] != '-' ||
      (moment[10] != 'T' && moment[10] != ' ') || moment[13] != ':' || moment[16] != ':') {
    return std::nullopt;
  }
  std::array<int, 6> values{};
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto& field = fields[i];
    if (!parseNumber(moment.substr(field.position, field.width), field.lowest, field.highest, values[i])) {
      return std::nullopt;
    }
  }
  const year_month_day date{year{values[0]}, month{static_cast<unsigned>(values[1])},
                            day{static_cast<unsigned>(values[2])}};
  if (!date.ok()) {
    return std::nullopt;
  }
  const std::int64_t days = sys_days{date}.time_since_epoch().count();
  return ((days * 24 + values[3]) * 60 + values[4]) * 60 + values[5];
}

RenderRequest parseRenderOptions(const std::vector<std::string>& arguments) {
  RenderOptions options;
  const std::map<std::string, bool*> flags = {
      {"--preview", &options.preview}, {"--hashes", &options.hashes}, {"--raw", &options.raw}};
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--help") {
      return {std::nullopt, usage, 0};
    }
    if (name == "--version") {
      return {std::nullopt, "lunaria-render 5.4.1\n", 0};
    }
    if (const auto flag = flags.find(name); flag != flags.end()) {
      *flag->second = true;
      continue;
    }
    const auto reader = readersOfValues().find(name);
    if (reader == readersOfValues().end()) {
      return failure("unknown option '" + name + "'");
    }
    if (i + 1 == arguments.size()) {
      return failure(name + " needs a value");
    }
    const std::string& value = arguments[++i];
    if (!reader->second(value, options)) {
      return failure("'" + value + "' is no value for " + name);
    }
  }
  if (const auto contradiction = contradictionIn(options); !contradiction.empty()) {
    return failure(contradiction);
  }
  return {options, "", 0};
}
