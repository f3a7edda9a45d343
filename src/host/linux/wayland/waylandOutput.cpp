// Implements the collecting of what the compositor tells of an output.
#include "host/linux/wayland/waylandOutput.h"

// What the library calls; each finds its output in the first value.
struct WaylandOutputListeners {
  static void hearGeometry(void* data, wl_output*, int x, int y, int, int, int, const char*, const char*,
                           int transform) {
    auto& output = *static_cast<WaylandOutput*>(data);
    if (!output.m_hasLogicalPlace) {
      output.m_facts.x = x;
      output.m_facts.y = y;
    }
    output.m_facts.transform = transform;
    output.m_isChanged = true;
  }

  static void hearMode(void* data, wl_output*, std::uint32_t flags, int width, int height, int) {
    auto& output = *static_cast<WaylandOutput*>(data);
    if ((flags & WL_OUTPUT_MODE_CURRENT) != 0) {
      output.m_facts.modeWidth = width;
      output.m_facts.modeHeight = height;
      output.m_isChanged = true;
    }
  }

  static void hearScale(void* data, wl_output*, int scale) {
    auto& output = *static_cast<WaylandOutput*>(data);
    output.m_facts.scale = scale;
    output.m_isChanged = true;
  }

  static void hearPosition(void* data, zxdg_output_v1*, int x, int y) {
    auto& output = *static_cast<WaylandOutput*>(data);
    output.m_hasLogicalPlace = true;
    output.m_facts.x = x;
    output.m_facts.y = y;
    output.m_isChanged = true;
  }

  static void hearSize(void* data, zxdg_output_v1*, int width, int height) {
    auto& output = *static_cast<WaylandOutput*>(data);
    output.m_facts.logicalWidth = width;
    output.m_facts.logicalHeight = height;
    output.m_isChanged = true;
  }

  // Members that newer libraries know stay null: their events come to newer objects only.
  static wl_output_listener ofOutput() {
    wl_output_listener listener{};
    listener.geometry = hearGeometry;
    listener.mode = hearMode;
    listener.done = [](void*, wl_output*) {};
    listener.scale = hearScale;
    return listener;
  }

  static zxdg_output_v1_listener ofLogicalPlace() {
    zxdg_output_v1_listener listener{};
    listener.logical_position = hearPosition;
    listener.logical_size = hearSize;
    listener.done = [](void*, zxdg_output_v1*) {};
    listener.name = [](void*, zxdg_output_v1*, const char*) {};
    listener.description = [](void*, zxdg_output_v1*, const char*) {};
    return listener;
  }
};

WaylandOutput::WaylandOutput(std::uint32_t name, Proxy<wl_output> output) : m_output(std::move(output)) {
  static const wl_output_listener listener = WaylandOutputListeners::ofOutput();
  m_facts.name = name;
  wl_output_add_listener(m_output.get(), &listener, this);
}

void WaylandOutput::askLogicalPlace(zxdg_output_manager_v1* manager) {
  static const zxdg_output_v1_listener listener = WaylandOutputListeners::ofLogicalPlace();
  if (m_logical == nullptr) {
    m_logical.reset(zxdg_output_manager_v1_get_xdg_output(manager, m_output.get()));
    zxdg_output_v1_add_listener(m_logical.get(), &listener, this);
  }
}
