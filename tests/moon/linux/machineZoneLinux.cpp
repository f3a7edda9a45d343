// Sets the zone by the environment.
#include "moon/machineZone.h"
#include "support/linux/temporaryEnvironment.h"

struct MachineZone::Previous {
  TemporaryEnvironment environment;
};

MachineZone::MachineZone() : m_previous(std::make_unique<Previous>()) {}

MachineZone::~MachineZone() = default;

bool MachineZone::set(const char* name) {
  m_previous->environment.set("TZ", name);
  return true;
}
