// The Wayland compositor as the saver's run knows displays.
#pragma once

#include "host/linux/saverDisplay.h"
#include "host/linux/wayland/waylandConnection.h"

class WaylandDisplay : public SaverDisplay {
 public:
  std::unique_ptr<SaverStage> open(const HostRequest& request, StopSignals& signals) override;

  // False where there is no compositor to be had.
  bool isUsable() const { return m_connection.isUsable(); }
  const std::string& name() const override { return m_connection.displayName(); }

 private:
  WaylandConnection m_connection;
};
