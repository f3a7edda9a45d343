// What the compositor offers: the objects that the saver needs of it, and its outputs and seats as they come
// and go.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "host/linux/wayland/proxy.h"
#include "host/linux/wayland/waylandConnection.h"
#include "host/linux/wayland/waylandOutput.h"

class WaylandGlobals {
 public:
  // Asks for the list; the connection is borrowed.
  explicit WaylandGlobals(WaylandConnection& connection);
  WaylandGlobals(const WaylandGlobals&) = delete;
  WaylandGlobals& operator=(const WaylandGlobals&) = delete;

  // Waits until everything is known, outputs included. False where the compositor has gone, or the program is
  // to end.
  bool learn();

  // Null where the compositor does not offer it.
  wl_compositor* compositor() const { return m_compositor.get(); }
  wl_shm* sharedMemory() const { return m_sharedMemory.get(); }
  zwlr_layer_shell_v1* layerShell() const { return m_layerShell.get(); }
  xdg_wm_base* desktopShell() const { return m_desktopShell.get(); }
  wp_viewporter* viewporter() const { return m_viewporter.get(); }
  zxdg_decoration_manager_v1* decorations() const { return m_decorations.get(); }

  // In the order in which they were told of.
  const std::vector<std::unique_ptr<WaylandOutput>>& outputs() const { return m_outputs; }
  // Those that are known well enough to be covered.
  std::vector<OutputFacts> knownOutputs() const;
  // Null where there is none of this name.
  const WaylandOutput* outputNamed(std::uint32_t name) const;
  // True once after an output came, went or changed.
  bool takeOutputsChanged();

  // Hands over the seats that there are, and those that come later. What is called must stay callable as long
  // as events are dispatched; null ends it.
  using TakeSeat = std::function<void(Proxy<wl_seat>)>;
  void handSeatsTo(TakeSeat take);

 private:
  friend struct WaylandGlobalsListeners;

  struct Offer {
    std::uint32_t name;
    std::uint32_t version;
  };

  void add(std::uint32_t name, const char* interface, std::uint32_t version);
  void addOutput(const Offer& offer);
  void remove(std::uint32_t name);
  // The offered object in the version that both sides know.
  template <class T>
  Proxy<T> bind(const Offer& offer, const wl_interface& interface, std::uint32_t newest);

  WaylandConnection& m_connection;
  Proxy<wl_registry> m_registry;
  Proxy<wl_compositor> m_compositor;
  Proxy<wl_shm> m_sharedMemory;
  Proxy<zwlr_layer_shell_v1> m_layerShell;
  Proxy<xdg_wm_base> m_desktopShell;
  Proxy<wp_viewporter> m_viewporter;
  Proxy<zxdg_output_manager_v1> m_logicalPlaces;
  Proxy<zxdg_decoration_manager_v1> m_decorations;
  std::vector<std::unique_ptr<WaylandOutput>> m_outputs;
  std::vector<Offer> m_seats;
  TakeSeat m_takeSeat;
  bool m_outputsChanged = false;
};
