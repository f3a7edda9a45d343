// The X display as the saver's run knows displays.
#pragma once

#include "host/linux/saverDisplay.h"
#include "host/linux/x11/x11Connection.h"

class X11Display : public SaverDisplay {
 public:
  const std::string& name() const override { return m_connection.displayName(); }
  std::unique_ptr<SaverStage> open(const HostRequest& request, StopSignals& signals) override;

 private:
  void check() const;

  X11Connection m_connection;
};
