// The two ways in which message stars come and go.
#pragma once

#include <memory>

#include "world/starTransition.h"

// Stars come out of the top left corner and leave into it.
class cStarTransitionEffect_Simple : public cStarTransitionEffectBase {
 public:
  using cStarTransitionEffectBase::cStarTransitionEffectBase;
  void applyUsage(Stars stars, Usage usage) override;
};

// Stars fall in from above their point and fall out below the window, drifting a little to a side.
class cStarTransitionEffect_Fall : public cStarTransitionEffectBase {
 public:
  using cStarTransitionEffectBase::cStarTransitionEffectBase;
  void applyUsage(Stars stars, Usage usage) override;
};

// One of the two, each as likely as the other (one random draw). The caller owns it; arguments as for
// cStarTransitionEffectBase.
std::unique_ptr<cStarTransitionEffectBase> newTransitionEffect(const xplRect<int>& screenRect,
                                                               cMsgStarList stars);
