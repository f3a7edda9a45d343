// The screen saver itself: it owns the night sky and turns ticks and paints into its frames.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/screenSaverAbstract.h"
#include "services/preventComputerSleep.h"
#include "services/services.h"
#include "services/telemetryController.h"
#include "support/log.h"
#include "support/settingsGroups.h"
#include "world/noctisWorld.h"
#include "world/windowTransitionEffect.h"

class noctisScreensaver : public xplScreenSaverAbstract {
 public:
  // Opens the settings, logs where their files are, and keeps the computer awake where the user wants that.
  // Without services it is silent, prevents no sleep and reports nothing.
  explicit noctisScreensaver(xplServices services = {});
  ~noctisScreensaver() override;

  // Starts the usage report of a full run, starts the startup effect where the user wants one, and builds the
  // world on the window. Passes on what the world's construction throws.
  void initWithWindowHandle(xplWindowHandle windowHandle, std::int32_t monitorId) override;
  void showConfigureSheet(xplWindowHandle parentWindow) override;
  void setContainerFolder(const std::string& path) override;
  // The world stands still while the startup effect plays.
  void animateOneFrame(float seconds) override;
  void monitorsChanged() override;
  // Draws the startup effect while it plays, the world afterwards.
  void drawOneFrame() override;
  // The back buffer covers the whole window at every paint: there is nothing to erase.
  void eraseBackground() override {}
  void shutDown() override;
  bool hasConfigureSheet() override { return true; }

  // The folder that was last set on any such object; empty before.
  static const std::string& processContainerFolder();
  // True where a run with this monitor id in the window of this number is one that is reported.
  static bool isRunReported(std::int32_t monitorId, std::uintptr_t windowNumber);

 private:
  void startTelemetry(xplWindowHandle windowHandle, std::int32_t monitorId);
  void startStartupEffect(std::int32_t monitorId);
  bool startupEffectPlays() const { return m_startupEffect && !m_startupEffect->finished(); }

  xplServices m_services;
  std::unique_ptr<TnoctisWorld> m_world;
  std::unique_ptr<cWindowTransitionEffect_base> m_startupEffect;  // null where there is none, and after it
  std::vector<std::unique_ptr<TnoctisWorld>> m_replacedWorlds;    // by a second initialisation
  cAppSettings m_appSettings;
  cPreventComputerSleep m_sleepPreventer;
  logObjectLife m_life{"noctisScreensaver"};
  std::unique_ptr<cTelemetryController>
      m_telemetry;  // null before the start, in previews and without services
};
