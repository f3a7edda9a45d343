// A surface as a layer over everything on one output, with the keyboard for itself.
#pragma once

#include "host/linux/wayland/proxy.h"
#include "host/linux/wayland/surfaceRole.h"

class LayerRole : public SurfaceRole {
 public:
  // The surface must not have a buffer, and is to be committed afterwards. All borrowed.
  LayerRole(zwlr_layer_shell_v1* shell, wl_surface* surface, wl_output* output, SurfaceRoleEvents& events);

 private:
  Proxy<zwlr_layer_surface_v1> m_layer;
};
