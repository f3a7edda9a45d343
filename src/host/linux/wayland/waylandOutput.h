// One output of the compositor, and what it tells of it.
#pragma once

#include <utility>

#include "host/linux/wayland/outputLayout.h"
#include "host/linux/wayland/proxy.h"

class WaylandOutput {
 public:
  // name: the compositor's number for it.
  WaylandOutput(std::uint32_t name, Proxy<wl_output> output);
  WaylandOutput(const WaylandOutput&) = delete;
  WaylandOutput& operator=(const WaylandOutput&) = delete;

  // Asks for its logical place too. The manager is borrowed for the call.
  void askLogicalPlace(zxdg_output_manager_v1* manager);

  wl_output* get() const { return m_output.get(); }
  const OutputFacts& facts() const { return m_facts; }
  // True once after something else was told.
  bool takeChanged() { return std::exchange(m_isChanged, false); }

 private:
  friend struct WaylandOutputListeners;

  Proxy<wl_output> m_output;
  Proxy<zxdg_output_v1> m_logical;  // null where nobody asked
  OutputFacts m_facts;
  bool m_hasLogicalPlace = false;  // which counts more than the output's own
  bool m_isChanged = false;
};
