// A surface as a window: over one whole output, or an ordinary one of a fixed size.
#pragma once

#include "host/linux/wayland/proxy.h"
#include "host/linux/wayland/surfaceRole.h"

class WindowRole : public SurfaceRole {
 public:
  // The surface must not have a buffer, and is to be committed afterwards. All borrowed.
  WindowRole(xdg_wm_base* shell, wl_surface* surface, SurfaceRoleEvents& events);
  // To be called at most once, before the commit. The output is borrowed.
  void coverOutput(wl_output* output);
  // To be called at most once, before the commit. Logical pixels. decorations: null where the compositor
  // draws no frames around windows; borrowed.
  void beOrdinary(int width, int height, zxdg_decoration_manager_v1* decorations);

 private:
  friend struct WindowRoleListeners;

  SurfaceRoleEvents& m_events;
  Proxy<xdg_surface> m_surface;
  Proxy<xdg_toplevel> m_window;
  Proxy<zxdg_toplevel_decoration_v1> m_decoration;
  int m_width = 0;  // logical pixels, as told last
  int m_height = 0;
};
