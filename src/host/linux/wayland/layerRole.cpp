// Implements the layer over an output.
#include "host/linux/wayland/layerRole.h"

namespace {

void hearConfigure(void* data, zwlr_layer_surface_v1* layer, std::uint32_t serial, std::uint32_t width,
                   std::uint32_t height) {
  zwlr_layer_surface_v1_ack_configure(layer, serial);
  static_cast<SurfaceRoleEvents*>(data)->hearSize(static_cast<int>(width), static_cast<int>(height));
}

void hearClosed(void* data, zwlr_layer_surface_v1*) {
  static_cast<SurfaceRoleEvents*>(data)->hearClosing();
}

}  // namespace

LayerRole::LayerRole(zwlr_layer_shell_v1* shell, wl_surface* surface, wl_output* output,
                     SurfaceRoleEvents& events) {
  static const zwlr_layer_surface_v1_listener listener{hearConfigure, hearClosed};
  m_layer.reset(zwlr_layer_shell_v1_get_layer_surface(shell, surface, output,
                                                      ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "lunaria"));
  zwlr_layer_surface_v1_add_listener(m_layer.get(), &listener, &events);
  // Tied to all edges it is as large as the output.
  zwlr_layer_surface_v1_set_anchor(
      m_layer.get(), ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                         ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT);
  constexpr int overPanels = -1;  // it leaves no room to panels, and takes none from windows
  zwlr_layer_surface_v1_set_exclusive_zone(m_layer.get(), overPanels);
  zwlr_layer_surface_v1_set_keyboard_interactivity(m_layer.get(),
                                                   ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE);
}
