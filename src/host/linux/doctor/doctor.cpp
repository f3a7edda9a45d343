// Lets all checks look at the real system.
#include "host/linux/doctor/doctor.h"

#include "host/linux/doctor/checks.h"
#include "host/linux/doctor/realSystem.h"
#include "host/linux/doctor/report.h"

Diagnosis diagnose() {
  RealSystem system;
  const auto chapters = lookAround(system);
  return {reportOf(chapters), problemsIn(chapters) == 0};
}
