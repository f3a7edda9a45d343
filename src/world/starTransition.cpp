// Sorts the message stars by what happens to them and schedules their flights.
#include "world/starTransition.h"

#include "support/assertion.h"
#include "support/log.h"
#include "support/random.h"

namespace {

bool liesWithinTheAnimation(float t1, float t2) {
  return (t1 < t2) && (t2 <= cStarTransitionEffectBase::m_animationDuration_inSec);
}

// The log names the condition in the words by which it is looked for, which are not how it is laid out here.
void checkFlight(float t1, float t2) {
  if (xplAssertionsReport && !liesWithinTheAnimation(t1, t2)) {
    xplReportFailedAssertion("(t1<t2) && (t2<=m_animationDuration_inSec)", "#9682: startTransition_impl()",
                             "cStarTransition", __LINE__);
  }
}

}  // namespace

void cStarTransitionEffectBase::startTransition(std::span<const sTargetPoint> points) {
  xplAssert(m_stars.data() != nullptr, "#8652: startTransition() particlePtrList is null", "cStarTransition");
  // Deliberate: a text of more points than stars loses those at its lower right; the stars are not spread
  // thinner over all of them. The letters of a long text would fade, and every formation would change.
  for (std::size_t i = 0; i < m_stars.size(); ++i) {
    cMsgStar& star = *m_stars[i];
    if (i < points.size()) {
      star.targetX = points[i].x;
      star.targetY = points[i].y;
    }
    star.visibleAfterArrival = i < points.size();
  }
  sortByUsage();
  for (const Usage usage : {su_YY, su_YN, su_NY, su_NN}) {
    applyUsage(m_starsByUsage[usage], usage);
  }
  logInfo().addf(
      "number of message star by usage: su_YY=%i, su_YN=%i, su_NY=%i, su_NN=%i",
      static_cast<int>(m_starsByUsage[su_YY].size()), static_cast<int>(m_starsByUsage[su_YN].size()),
      static_cast<int>(m_starsByUsage[su_NY].size()), static_cast<int>(m_starsByUsage[su_NN].size()));
  scheduleStars(points.size());
  m_elapsed = 0.0F;
  m_isRunning = true;
  logInfo().add("Transition started");
}

void cStarTransitionEffectBase::sortByUsage() {
  for (auto& stars : m_starsByUsage) {
    stars.clear();
  }
  for (const auto& star : m_stars) {
    const Usage usage = star->isVisible ? (star->visibleAfterArrival ? su_YY : su_YN)
                                        : (star->visibleAfterArrival ? su_NY : su_NN);
    m_starsByUsage[usage].push_back(star.get());
  }
}

// Deliberate: it stops at the first star that is neither shown now nor afterwards. The stars of any message
// are those with the lowest numbers, so all that follow are of the same kind; and the random draws of a
// transition are two for each star before it. Going through all of them would draw more.
void cStarTransitionEffectBase::scheduleStars(std::size_t pointCount) {
  for (std::size_t i = 0; i < m_stars.size(); ++i) {
    cMsgStar& star = *m_stars[i];
    if (!star.isVisible && !star.visibleAfterArrival) {
      break;
    }
    const float startShare = xplRandom::unit();
    const float t1 = startShare * 0.5F * m_animationDuration_inSec;
    const float lengthShare = xplRandom::unit();
    const float t2 = (0.4F + 0.6F * lengthShare) * (m_animationDuration_inSec - t1) + t1;
    checkFlight(t1, t2);
    star.schedule(t1, t2, i < pointCount);
  }
}

void cStarTransitionEffectBase::advance(float elapsedSec) {
  m_elapsed += elapsedSec;
  if (m_isRunning) {
    m_isRunning = m_elapsed < m_animationDuration_inSec;
  }
}
