// What the saver does beyond its window: sounds, sleep prevention, the usage report. Each can be left out.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "services/analytics.h"
#include "services/keepAwake.h"
#include "services/soundOutput.h"

// How the saver comes by the services of its platform. An empty member means that it does without: a saver
// with xplServices{} plays no sound, prevents no sleep and reports nothing, as tests want it.
struct xplServices {
  std::function<std::unique_ptr<xpliSoundOutput>()> makeSoundOutput;
  std::function<std::unique_ptr<xpliKeepAwake>()> makeKeepAwake;
  // The vendor's library from the program's folder where it is there, else the built-in stand-in. May be
  // called on any thread.
  std::function<std::unique_ptr<xpliAnalytics>(const std::string& programFolder)> makeAnalytics;

  // The real ones, for the programs that users start.
  static xplServices ofPlatform();

  // Those of these that remain for a run beside another one, which makes the sounds and the usage report.
  xplServices besideAnotherRun() const;
};
