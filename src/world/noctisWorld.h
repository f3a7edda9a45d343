// The night sky: everything in it, in its order, and one frame of its motion.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "graphics/rect.h"
#include "graphics/window.h"
#include "moon/moonInfoSprite.h"
#include "moon/moonSprite.h"
#include "quotes/quotesSprite.h"
#include "services/soundPlayer.h"
#include "sprites/moveRestriction.h"
#include "sprites/spriteDirector.h"
#include "sprites/spriteText.h"
#include "support/settingsGroups.h"
#include "world/airplane.h"
#include "world/frameRateSprite.h"
#include "world/msgStarDirector.h"
#include "world/skyBackground.h"
#include "world/starWithPixels.h"

class TnoctisWorld {
 public:
  static constexpr std::int32_t previewMonitorId = -1;
  static constexpr std::size_t starCount = 200;
  static constexpr std::size_t msgStarCount = 1500;
  static constexpr std::size_t airplaneCount = 3;

  // Borrows the window (null for none) and the monitor list (screen coordinates, the main monitor first);
  // both must outlive the world. monitorId: 0 for the normal run, -1 for the preview. containerFolder: the
  // program's folder. soundOutput is taken over; without one, and in the preview, the world is silent.
  TnoctisWorld(xplWindow* window, std::int32_t monitorId, const std::vector<xplRect<int>>& monitorList,
               const std::string& containerFolder, std::unique_ptr<xpliSoundOutput> soundOutput = nullptr);
  ~TnoctisWorld();
  TnoctisWorld(const TnoctisWorld&) = delete;
  TnoctisWorld& operator=(const TnoctisWorld&) = delete;

  // Places everything and registers it in drawing order. Called once. An element that fails is logged and
  // left out.
  void initializeWorld();
  // One frame of motion; seconds.
  void update(float elapsedSec);
  // Draws everything that is shown on the window's current target, back to front.
  void draw();
  // The list of monitors that it was made with has changed: the moon moves over to the main one, or to the
  // first of which a part lies in the window. Where there is none, and in the preview, all stays.
  void followMonitors();
  // Lets the stars spell the next message, and its bottom line scroll once they have arrived. Nothing without
  // messages.
  void applyNextMessage();

  // 0 in the normal run, -1 in the preview.
  std::int32_t monitorId() const { return m_monitorId; }
  const std::string& containerFolder() const { return m_containerFolder; }
  const xplRect<int>& windowRect() const { return m_windowRect; }
  const xplRect<int>& mainMonitorRect() const { return m_mainMonitorRect; }
  const TorvSpriteDirector& spriteDirector() const { return m_spriteDirector; }
  const cMoonInfoSprite& moonInfoLabel() const { return m_moonInfoLabel; }
  const cQuotesSprite& quotesLabel() const { return m_quotesLabel; }
  const TorvSpriteText& bottomLine() const { return m_bottomLine; }
  const cMoonSprite& moon() const { return m_moon; }
  const cStarSpriteWithPixels& star(std::size_t index) const { return *m_stars[index]; }
  const cMsgStar& msgStar(std::size_t index) const { return *m_msgStars[index]; }
  const cMsgStarDirector& msgStarDirector() const { return m_msgStarDirector; }
  const cAirplane& airplane(std::size_t index) const { return m_airplanes[index]; }
  const cFrameRateSprite& frameRateLabel() const { return m_frameRateLabel; }

 private:
  void createStars();
  void createMsgStars();
  void takeOverWindow();
  void initializeBackground();
  void initializeStars();
  void initializeMsgStars();
  void initializeMoon();
  void placeMoon();
  void initializeBottomLine();
  void initializeMoonInfoLabel();
  void initializeQuotesLabel();
  void initializeAirplanes();
  void findMainMonitorInWindow();
  bool isMoonKeptOnMainMonitor() const;
  void centerLabelUnderMoon();
  void keepQuotesClearOfTheMoon();
  bool isNextMessageDue() const;
  void parkBottomLine();

  std::int32_t m_monitorId;
  cSoundPlayer m_soundPlayer;
  xplRect<int> m_windowRect;           // in the window's own coordinates
  xplRect<int> m_mainMonitorRect;      // in screen coordinates
  xplRect<int> m_mainMonitorInWindow;  // the main monitor's part of the window, in the window's coordinates
  TorvMoveRestriction_BounceInsideRect m_bounceInsideMainMonitor{&m_mainMonitorInWindow};
  TorvMoveRestriction_BounceInsideRect m_bounceInsideWindow{&m_windowRect};
  TorvMoveRestriction_ContinueInsideRect m_continueInsideWindow{&m_windowRect};
  TorvSpriteDirector m_spriteDirector;
  cMoonInfoSprite m_moonInfoLabel;
  cQuotesSprite m_quotesLabel;
  TorvSpriteText m_bottomLine{"bottomLine"};
  cMoonSprite m_moon;
  cMoonSettings m_moonSettings;
  std::array<std::unique_ptr<cStarSpriteWithPixels>, starCount> m_stars;
  std::array<std::unique_ptr<cMsgStar>, msgStarCount> m_msgStars;
  std::array<cAirplane, airplaneCount> m_airplanes;
  xplColor m_backgroundColor{0, 0, 0};
  std::vector<std::unique_ptr<cSkyBackground>> m_backgrounds;
  cMsgStarDirector m_msgStarDirector;
  xplWindow* m_window;
  const std::vector<xplRect<int>>* m_monitorList;
  cSkyBackground* m_skyBackground = nullptr;  // one of m_backgrounds
  std::string m_containerFolder;
  cFrameRateSprite m_frameRateLabel;
};
