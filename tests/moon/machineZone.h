// The zone that local time is in; each platform supplies it.
#pragma once

#include <memory>

class MachineZone {
 public:
  MachineZone();
  ~MachineZone();  // local time is again what it was
  MachineZone(const MachineZone&) = delete;
  MachineZone& operator=(const MachineZone&) = delete;

  // Makes local time that of "UTC", "Asia/Kolkata", "America/St_Johns" or "Pacific/Auckland". False where a
  // program cannot do so and this machine's zone is another: the test is then for another machine, or for
  // another run of tests/moon/windows/zones.sh.
  bool set(const char* name);

 private:
  struct Previous;
  std::unique_ptr<Previous> m_previous;
};
