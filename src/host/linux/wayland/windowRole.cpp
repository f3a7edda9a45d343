// Implements the window.
#include "host/linux/wayland/windowRole.h"

// What the library calls; each finds its window in the first value.
struct WindowRoleListeners {
  static void hearWindow(void* data, xdg_toplevel*, int width, int height, wl_array*) {
    auto& role = *static_cast<WindowRole*>(data);
    role.m_width = width;
    role.m_height = height;
  }
  static void hearClose(void* data, xdg_toplevel*) { static_cast<WindowRole*>(data)->m_events.hearClosing(); }
  // Comes after all that belongs together.
  static void hearConfigure(void* data, xdg_surface* surface, std::uint32_t serial) {
    auto& role = *static_cast<WindowRole*>(data);
    xdg_surface_ack_configure(surface, serial);
    role.m_events.hearSize(role.m_width, role.m_height);
  }
  // Members that newer libraries know stay null: their events come to newer objects only.
  static xdg_toplevel_listener ofWindow() {
    xdg_toplevel_listener listener{};
    listener.configure = hearWindow;
    listener.close = hearClose;
    return listener;
  }
};

WindowRole::WindowRole(xdg_wm_base* shell, wl_surface* surface, SurfaceRoleEvents& events)
    : m_events(events) {
  static const xdg_surface_listener surfaceListener{WindowRoleListeners::hearConfigure};
  static const xdg_toplevel_listener windowListener = WindowRoleListeners::ofWindow();
  m_surface.reset(xdg_wm_base_get_xdg_surface(shell, surface));
  xdg_surface_add_listener(m_surface.get(), &surfaceListener, this);
  m_window.reset(xdg_surface_get_toplevel(m_surface.get()));
  xdg_toplevel_add_listener(m_window.get(), &windowListener, this);
  xdg_toplevel_set_title(m_window.get(), "Lunaria");
  xdg_toplevel_set_app_id(m_window.get(), "lunaria");
}

void WindowRole::coverOutput(wl_output* output) {
  xdg_toplevel_set_fullscreen(m_window.get(), output);
}

void WindowRole::beOrdinary(int width, int height, zxdg_decoration_manager_v1* decorations) {
  // A fixed size, since the sky keeps the one that it starts with.
  xdg_toplevel_set_min_size(m_window.get(), width, height);
  xdg_toplevel_set_max_size(m_window.get(), width, height);
  if (decorations != nullptr) {
    m_decoration.reset(zxdg_decoration_manager_v1_get_toplevel_decoration(decorations, m_window.get()));
    zxdg_toplevel_decoration_v1_set_mode(m_decoration.get(), ZXDG_TOPLEVEL_DECORATION_V1_MODE_SERVER_SIDE);
  }
}
