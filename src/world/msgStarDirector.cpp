// Takes the messages in their order and starts the flights of the stars.
#include "world/msgStarDirector.h"

#include "support/assertion.h"
#include "support/random.h"
#include "world/messageProjection.h"
#include "world/starTransitionKinds.h"

void cMsgStarDirector::prepare() {
  m_messages.load();
}

void cMsgStarDirector::chooseRandomMessage() {
  if (hasMessages()) {
    const int number = xplRandom::next();
    m_messages.currentIndex = static_cast<std::size_t>(number) % m_messages.count();
  }
}

const sMessage* cMsgStarDirector::getMsg() {
  const sMessage* message = m_messages.get(m_messages.currentIndex);
  ++m_messages.currentIndex;
  if (m_messages.currentIndex >= m_messages.count()) {
    m_messages.currentIndex = 0;
  }
  return message;
}

void cMsgStarDirector::project(const std::string& text, const xplRect<int>& screenRect) {
  projectMessage(text, screenRect, m_targetPoints);
}

void cMsgStarDirector::startTransition(const xplRect<int>& screenRect, cMsgStarList stars) {
  xplAssert(stars.data() != nullptr, "#4597: startTransition called but aParticleList=NULL",
            "cMsgStarDirector");
  m_transition.reset();
  m_transition = newTransitionEffect(screenRect, stars);
  if (m_transition != nullptr) {
    m_transition->startTransition(m_targetPoints);
  }
}

void cMsgStarDirector::advance(float elapsedSec) {
  if (m_transition != nullptr && hasMessages()) {
    m_transition->advance(elapsedSec);
    m_isIdle = !m_transition->isRunning();
  }
}
