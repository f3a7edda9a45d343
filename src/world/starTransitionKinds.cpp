// Where message stars come from and where they go.
#include "world/starTransitionKinds.h"

#include "sprites/wholePixel.h"
#include "support/assertion.h"
#include "support/random.h"

namespace {

constexpr int cornerOutside = -3;  // pixels from the top left corner, in both directions
constexpr int aboveWindow = 5;     // pixels
constexpr int belowWindow = 3;     // pixels

void putIntoCorner(cMsgStar& star, bool shownAfterwards) {
  star.x = static_cast<float>(cornerOutside);
  star.y = static_cast<float>(cornerOutside);
  star.isVisible = false;
  star.visibleAfterArrival = shownAfterwards;
}

// A sideways drift in [-50, 49] pixels; one random draw.
int drift() {
  const float share = xplRandom::unit();
  return -50 - static_cast<int>(-share * 100.0F);
}

}  // namespace

void cStarTransitionEffect_Simple::applyUsage(Stars stars, Usage usage) {
  for (cMsgStar* star : stars) {
    if (usage == su_YN) {
      star->targetX = cornerOutside;
      star->targetY = cornerOutside;
      star->visibleAfterArrival = false;
    } else if (usage != su_YY) {
      putIntoCorner(*star, usage == su_NY);
    }
  }
}

void cStarTransitionEffect_Fall::applyUsage(Stars stars, Usage usage) {
  for (cMsgStar* star : stars) {
    if (usage == su_YN) {
      star->targetX = wholePixel(star->x) + drift();
      star->targetY = screenRect().getBottom() + belowWindow;
      star->visibleAfterArrival = false;
    } else if (usage == su_NY) {
      star->x = static_cast<float>(star->targetX + drift());
      star->y = static_cast<float>(screenRect().top - aboveWindow);
      star->visibleAfterArrival = true;
    }
  }
}

std::unique_ptr<cStarTransitionEffectBase> newTransitionEffect(const xplRect<int>& screenRect,
                                                               cMsgStarList stars) {
  const float share = xplRandom::unit();
  switch (static_cast<int>(share * 1000.0F) % 2) {
    case 0:
      return std::make_unique<cStarTransitionEffect_Simple>(screenRect, stars);
    case 1:
      return std::make_unique<cStarTransitionEffect_Fall>(screenRect, stars);
    default:
      xplAssert(false, "#4365 error in newTransitionEffect()", "cStarTransition");
      return nullptr;
  }
}
