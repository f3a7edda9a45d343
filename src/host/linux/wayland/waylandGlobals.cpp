// Implements the collecting of what the compositor offers.
#include "host/linux/wayland/waylandGlobals.h"

#include <algorithm>
#include <string_view>
#include <utility>

// What the library calls; each finds its object in the first value.
struct WaylandGlobalsListeners {
  static void hearGlobal(void* data, wl_registry*, std::uint32_t name, const char* interface,
                         std::uint32_t version) {
    static_cast<WaylandGlobals*>(data)->add(name, interface, version);
  }
  static void hearRemoval(void* data, wl_registry*, std::uint32_t name) {
    static_cast<WaylandGlobals*>(data)->remove(name);
  }
  static void answerPing(void*, xdg_wm_base* shell, std::uint32_t serial) { xdg_wm_base_pong(shell, serial); }
};

WaylandGlobals::WaylandGlobals(WaylandConnection& connection) : m_connection(connection) {
  static const wl_registry_listener listener{WaylandGlobalsListeners::hearGlobal,
                                             WaylandGlobalsListeners::hearRemoval};
  m_registry.reset(wl_display_get_registry(connection.get()));
  wl_registry_add_listener(m_registry.get(), &listener, this);
}

bool WaylandGlobals::learn() {
  // First what there is, then what the objects tell of themselves.
  return m_connection.roundTrip() && m_connection.roundTrip();
}

template <class T>
Proxy<T> WaylandGlobals::bind(const Offer& offer, const wl_interface& interface, std::uint32_t newest) {
  return Proxy<T>(static_cast<T*>(
      wl_registry_bind(m_registry.get(), offer.name, &interface, std::min(offer.version, newest))));
}

void WaylandGlobals::add(std::uint32_t name, const char* interface, std::uint32_t version) {
  const Offer offer{name, version};
  const std::string_view kind = interface;
  if (kind == wl_output_interface.name) {
    addOutput(offer);
  } else if (kind == wl_seat_interface.name) {
    m_seats.push_back(offer);
    handSeatsTo(std::move(m_takeSeat));
  } else if (kind == wl_compositor_interface.name) {
    m_compositor = bind<wl_compositor>(offer, wl_compositor_interface, 4);
  } else if (kind == wl_shm_interface.name) {
    m_sharedMemory = bind<wl_shm>(offer, wl_shm_interface, 1);
  } else if (kind == zwlr_layer_shell_v1_interface.name) {
    m_layerShell = bind<zwlr_layer_shell_v1>(offer, zwlr_layer_shell_v1_interface, 4);
  } else if (kind == xdg_wm_base_interface.name) {
    static const xdg_wm_base_listener listener{WaylandGlobalsListeners::answerPing};
    m_desktopShell = bind<xdg_wm_base>(offer, xdg_wm_base_interface, 1);
    xdg_wm_base_add_listener(m_desktopShell.get(), &listener, nullptr);
  } else if (kind == wp_viewporter_interface.name) {
    m_viewporter = bind<wp_viewporter>(offer, wp_viewporter_interface, 1);
  } else if (kind == zxdg_decoration_manager_v1_interface.name) {
    m_decorations = bind<zxdg_decoration_manager_v1>(offer, zxdg_decoration_manager_v1_interface, 1);
  } else if (kind == zxdg_output_manager_v1_interface.name) {
    m_logicalPlaces = bind<zxdg_output_manager_v1>(offer, zxdg_output_manager_v1_interface, 3);
    for (const auto& output : m_outputs) {
      output->askLogicalPlace(m_logicalPlaces.get());
    }
  }
}

void WaylandGlobals::addOutput(const Offer& offer) {
  m_outputs.push_back(
      std::make_unique<WaylandOutput>(offer.name, bind<wl_output>(offer, wl_output_interface, 3)));
  if (m_logicalPlaces) {
    m_outputs.back()->askLogicalPlace(m_logicalPlaces.get());
  }
  m_outputsChanged = true;
}

void WaylandGlobals::remove(std::uint32_t name) {
  m_outputsChanged |= std::erase_if(m_outputs, [&](const auto& o) { return o->facts().name == name; }) > 0;
  std::erase_if(m_seats, [&](const Offer& seat) { return seat.name == name; });
}

std::vector<OutputFacts> WaylandGlobals::knownOutputs() const {
  std::vector<OutputFacts> known;
  for (const auto& output : m_outputs) {
    if (output->facts().isKnown()) {
      known.push_back(output->facts());
    }
  }
  return known;
}

const WaylandOutput* WaylandGlobals::outputNamed(std::uint32_t name) const {
  const auto found = std::find_if(m_outputs.begin(), m_outputs.end(),
                                  [&](const auto& output) { return output->facts().name == name; });
  return found != m_outputs.end() ? found->get() : nullptr;
}

bool WaylandGlobals::takeOutputsChanged() {
  for (const auto& output : m_outputs) {
    m_outputsChanged |= output->takeChanged();
  }
  return std::exchange(m_outputsChanged, false);
}

void WaylandGlobals::handSeatsTo(TakeSeat take) {
  m_takeSeat = std::move(take);
  if (m_takeSeat) {
    for (const Offer& seat : std::exchange(m_seats, {})) {
      m_takeSeat(bind<wl_seat>(seat, wl_seat_interface, 3));
    }
  }
}
