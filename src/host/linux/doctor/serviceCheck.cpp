// Looks at sound and sleep prevention.
#include "host/linux/doctor/checks.h"

Findings ServiceCheck::look(SystemView& system) {
  Findings findings;
  const std::string sound = system.trySound();
  findings.push_back(sound.empty() ? Finding{"Sound works: the device could be opened.", ""}
                                   : Finding{"Sound does not work (" + sound + "). The sky is silent.",
                                             "start a sound server (pipewire, pulseaudio), or log in anew"});
  const std::string sleep = system.trySleepPrevention();
  findings.push_back(
      sleep.empty() ? Finding{"The computer can be kept awake: logind agrees.", ""}
                    : Finding{"The computer cannot be kept awake, for logind cannot be asked or refuses (" +
                                  sleep + "). The setting that prevents sleep does nothing.",
                              "systemctl status systemd-logind   (it must be running)"});
  return findings;
}
