// Keeps the computer awake while the saver runs: always, or until a moment that the user chose.
#pragma once

#include <cstdint>
#include <memory>

#include "services/keepAwake.h"
#include "support/settingsGroups.h"

class cPreventComputerSleep : public cAppSettings {
 public:
  // Takes the platform's request over; without one every request fails. Borrows the store, which must outlive
  // this. Reads the settings, switches an
  // option off that has expired, and makes the request where one is in force.
  explicit cPreventComputerSleep(std::unique_ptr<xpliKeepAwake> keepAwake,
                                 xplSettings& store = xplUserSettings());
  ~cPreventComputerSleep();
  cPreventComputerSleep(const cPreventComputerSleep&) = delete;
  cPreventComputerSleep& operator=(const cPreventComputerSleep&) = delete;

  // True where the option is in force at this moment, whether or not the platform was asked.
  bool isActive() const;
  // Asks the platform. True where it agreed.
  bool preventIdleSleep();
  // Ends the request, and switches the option off where its time is over. Does nothing without a request.
  void restoreIdleSleep();
  // In the timed modes: switches the option off, here and in the settings, where its time is over. What the
  // settings file holds by then counts: an option that was chosen anew meanwhile is taken over and stays.
  void changeSettingIfTimeHasExpired();
  // Once a frame.
  void tick();

  // True while a request that the platform agreed to is in force.
  bool isPreventing() const { return m_isPreventing; }

 private:
  bool isTimed() const;
  bool hasExpired() const;

  xplSettings& m_store;
  std::unique_ptr<xpliKeepAwake> m_keepAwake;  // null: every request fails
  std::int32_t m_mode;                         // value of "preventComputerSleep"
  std::int32_t m_tickCounter = 0;              // frames since the last check
  bool m_isPreventing = false;
};
