// Moves the message stars from one formation to the next: who stays, who leaves, who comes, and when.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <vector>

#include "graphics/rect.h"
#include "world/msgStar.h"

// A point of a formation, in window coordinates (pixels).
struct sTargetPoint {
  int x = 0;
  int y = 0;
  bool operator==(const sTargetPoint&) const = default;
};

// The message stars in their order; star i takes point i.
using cMsgStarList = std::span<const std::unique_ptr<cMsgStar>>;

class cStarTransitionEffectBase {
 public:
  // Seconds from the start until every star has arrived.
  static constexpr float m_animationDuration_inSec = 20.0F;

  // What happens to a star: visible now (Y or N), visible afterwards (Y or N).
  enum Usage { su_YY = 0, su_YN = 1, su_NY = 2, su_NN = 3 };
  using Stars = std::span<cMsgStar* const>;

  // Copies the rectangle (window coordinates) and borrows the stars, which must outlive the effect.
  cStarTransitionEffectBase(const xplRect<int>& screenRect, cMsgStarList stars)
      : m_screenRect(screenRect), m_stars(stars) {}
  virtual ~cStarTransitionEffectBase() = default;
  cStarTransitionEffectBase(const cStarTransitionEffectBase&) = delete;
  cStarTransitionEffectBase& operator=(const cStarTransitionEffectBase&) = delete;

  // Prepares the stars of one usage: where they start or where they go.
  virtual void applyUsage(Stars stars, Usage usage) = 0;

  // Sends the stars to the points and begins the clock at 0. Stars without a point leave.
  void startTransition(std::span<const sTargetPoint> points);
  // One frame: the clock goes on, and the effect runs as long as it is below its duration.
  void advance(float elapsedSec);

  float elapsed() const { return m_elapsed; }  // seconds since startTransition
  bool isRunning() const { return m_isRunning; }

 protected:
  const xplRect<int>& screenRect() const { return m_screenRect; }

 private:
  void sortByUsage();
  void scheduleStars(std::size_t pointCount);

  xplRect<int> m_screenRect;
  cMsgStarList m_stars;
  std::array<std::vector<cMsgStar*>, 4> m_starsByUsage;  // by Usage
  float m_elapsed = 0.0F;
  bool m_isRunning = false;
};
