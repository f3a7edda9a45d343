// Chooses the messages one after another and leads the message stars to them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/settingsGroups.h"
#include "world/starTransition.h"

class cMsgStarDirector {
 public:
  // Reads the user's messages.
  void prepare();

  bool hasMessages() const { return m_messages.count() > 0; }
  // Makes a message that is drawn at random the next one; nothing without messages.
  void chooseRandomMessage();
  // The next message; the one after it, or the first after the last, becomes the next. Null where the next is
  // none of the messages. Valid as long as the director.
  const sMessage* getMsg();

  // Lays the text out over the window's rectangle (its own coordinates) into target points.
  void project(const std::string& text, const xplRect<int>& screenRect);
  // Ends the transition that there is, and begins a new one of the stars (borrowed, as long as it lasts) to
  // the target points.
  void startTransition(const xplRect<int>& screenRect, cMsgStarList stars);
  // One frame of the transition, where there is one; seconds.
  void advance(float elapsedSec);

  // Null before the first transition; owned here, until the next begins.
  const cStarTransitionEffectBase* transition() const { return m_transition.get(); }
  const std::vector<sTargetPoint>& targetPoints() const { return m_targetPoints; }
  // Whether no stars are on their way.
  bool isIdle() const { return m_isIdle; }

 private:
  cMessageSettings m_messages;
  std::vector<sTargetPoint> m_targetPoints;
  std::unique_ptr<cStarTransitionEffectBase> m_transition;
  bool m_isIdle = true;
};
