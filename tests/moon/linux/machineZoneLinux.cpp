// Sets the zone by the environment.
#include "moon/machineZone.h"
#include "support/linux/temporaryEnvironment.h"

struct UniversalZone::Previous {
  TemporaryEnvironment environment;
};

UniversalZone::UniversalZone() : m_previous(std::make_unique<Previous>()) {
  m_previous->environment.set("TZ", "UTC0");
}

UniversalZone::~UniversalZone() = default;

bool UniversalZone::isUniversal() const {
  return true;
}
