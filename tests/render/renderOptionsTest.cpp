// What the command line of lunaria-render means.
#include <gtest/gtest.h>

#include "render/renderOptions.h"

namespace {

RenderOptions parsed(const std::vector<std::string>& arguments) {
  const auto request = parseRenderOptions(arguments);
  EXPECT_TRUE(request.options.has_value()) << request.message;
  return request.options.value_or(RenderOptions{});
}

void expectRefused(const std::vector<std::string>& arguments, const std::string& why) {
  const auto request = parseRenderOptions(arguments);
  EXPECT_FALSE(request.options.has_value());
  EXPECT_EQ(1, request.exitCode);
  EXPECT_NE(std::string::npos, request.message.find(why)) << request.message;
  EXPECT_NE(std::string::npos, request.message.find("--size WxH")) << "the usage follows";
}

TEST(RenderOptions, HaveTheDefaultsOfAFullScreen) {
  const auto options = parsed({"-o", "sky.png"});
  EXPECT_EQ(1920, options.width);
  EXPECT_EQ(1080, options.height);
  EXPECT_EQ(1U, options.seed);
  EXPECT_FALSE(options.time.has_value());
  EXPECT_EQ(0.0, options.atSeconds);
  EXPECT_FALSE(options.frames.has_value());
  EXPECT_FALSE(options.preview || options.hashes || options.raw);
  EXPECT_EQ("sky.png", options.output);
}

TEST(RenderOptions, AreReadInAnyOrder) {
  const auto options = parsed({"--raw", "--frames", "25", "--seed", "4294967295", "-o", "-", "--size",
                               "640x360", "--at", "1.5", "--preview", "--settings", "a.ini", "--quotes",
                               "q.txt", "--time", "2026-11-21T20:00:00Z"});
  EXPECT_TRUE(options.raw && options.preview);
  EXPECT_EQ(25, options.frames);
  EXPECT_EQ(4294967295U, options.seed);
  EXPECT_EQ("-", options.output);
  EXPECT_EQ(640, options.width);
  EXPECT_EQ(360, options.height);
  EXPECT_EQ(1.5, options.atSeconds);
  EXPECT_EQ("a.ini", options.settingsFile);
  EXPECT_EQ("q.txt", options.quotesFile);
  EXPECT_EQ(1795291200, options.time);
}

TEST(RenderOptions, RefuseWhatTheyDoNotKnow) {
  expectRefused({"--colour", "red"}, "unknown option '--colour'");
  expectRefused({"sky.png"}, "unknown option 'sky.png'");
}

TEST(RenderOptions, RefuseWrongValues) {
  for (const char* size : {"640", "0x5", "5x0", "16385x1", "axb", "640x480x3", "-1x5", "x"}) {
    expectRefused({"--size", size, "-o", "a.png"}, "is no value for --size");
  }
  for (const char* seed : {"-1", "4294967296", "one", "", "1.5"}) {
    expectRefused({"--seed", seed, "-o", "a.png"}, "is no value for --seed");
  }
  for (const char* seconds : {"-1", "nan", "inf", "soon", "1e9"}) {
    expectRefused({"--at", seconds, "-o", "a.png"}, "is no value for --at");
  }
  expectRefused({"--frames", "0", "-o", "a-%d.png"}, "is no value for --frames");
  expectRefused({"--seed"}, "--seed needs a value");
}

TEST(RenderOptions, SayWhereTheFramesCannotGo) {
  expectRefused({}, "where to write");
  expectRefused({"--hashes", "-o", "-"}, "--hashes prints on standard output");
  for (const char* name : {"sky.png", "sky-%s.png", "sky-%d-%d.png", "sky-%00d.png", "sky-%"}) {
    expectRefused({"--frames", "2", "-o", name}, "--frames needs a number in the output name");
  }
}

TEST(RenderOptions, TakeHashesWithoutAFile) {
  EXPECT_TRUE(parsed({"--hashes"}).hashes);
}

TEST(RenderOptions, HelpAndVersionEndWell) {
  for (const char* option : {"--help", "--version"}) {
    const auto request = parseRenderOptions({option});
    EXPECT_FALSE(request.options.has_value());
    EXPECT_EQ(0, request.exitCode);
    EXPECT_NE(std::string::npos, request.message.find("lunaria-render"));
  }
}

TEST(IsoTime, CountsFrom1970) {
  EXPECT_EQ(0, parseIsoTime("1970-01-01T00:00:00"));
  EXPECT_EQ(0, parseIsoTime("1970-01-01T00:00Z"));
  EXPECT_EQ(951782399, parseIsoTime("2000-02-28 23:59:59"));
  EXPECT_EQ(951782400, parseIsoTime("2000-02-29T00:00:00Z"));
  EXPECT_EQ(-1, parseIsoTime("1969-12-31T23:59:59"));
  EXPECT_EQ(4102444800, parseIsoTime("2100-01-01T00:00:00"));
}

TEST(IsoTime, RefusesWhatIsNoMoment) {
  for (const char* text :
       {"", "now", "2026-02-29T00:00:00", "2026-13-01T00:00:00", "2026-11-21", "2026-11-21T24:00:00",
        "2026-11-21T20:60:00", "2026-11-21T20:00:60", "2026/11/21T20:00:00", "2026-11-21T20:00:0Z",
        "2026-11-21T20:00:00+01", "+026-11-21T20:00:00"}) {
    EXPECT_FALSE(parseIsoTime(text).has_value()) << text;
  }
}

}  // namespace
