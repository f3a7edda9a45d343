// Owners of the objects that a Wayland compositor makes for us: each is destroyed with its own request.
#pragma once

#include <memory>

#include <viewporter.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1.h>
#include <xdg-decoration-unstable-v1.h>
#include <xdg-output-unstable-v1.h>
#include <xdg-shell.h>

// Objects that older compositors have no request for go without one.
struct EndOfProxy {
  void operator()(wl_registry* p) const { wl_registry_destroy(p); }
  void operator()(wl_callback* p) const { wl_callback_destroy(p); }
  void operator()(wl_compositor* p) const { wl_compositor_destroy(p); }
  void operator()(wl_shm* p) const { wl_shm_destroy(p); }
  void operator()(wl_shm_pool* p) const { wl_shm_pool_destroy(p); }
  void operator()(wl_buffer* p) const { wl_buffer_destroy(p); }
  void operator()(wl_surface* p) const { wl_surface_destroy(p); }
  void operator()(wl_output* p) const {
    wl_output_get_version(p) >= WL_OUTPUT_RELEASE_SINCE_VERSION ? wl_output_release(p) : wl_output_destroy(p);
  }
  void operator()(wl_seat* p) const { wl_seat_destroy(p); }
  void operator()(wl_pointer* p) const {
    wl_pointer_get_version(p) >= WL_POINTER_RELEASE_SINCE_VERSION ? wl_pointer_release(p)
                                                                  : wl_pointer_destroy(p);
  }
  void operator()(wl_keyboard* p) const {
    wl_keyboard_get_version(p) >= WL_KEYBOARD_RELEASE_SINCE_VERSION ? wl_keyboard_release(p)
                                                                    : wl_keyboard_destroy(p);
  }
  void operator()(wl_touch* p) const {
    wl_touch_get_version(p) >= WL_TOUCH_RELEASE_SINCE_VERSION ? wl_touch_release(p) : wl_touch_destroy(p);
  }
  void operator()(xdg_wm_base* p) const { xdg_wm_base_destroy(p); }
  void operator()(xdg_surface* p) const { xdg_surface_destroy(p); }
  void operator()(xdg_toplevel* p) const { xdg_toplevel_destroy(p); }
  void operator()(zxdg_output_manager_v1* p) const { zxdg_output_manager_v1_destroy(p); }
  void operator()(zxdg_output_v1* p) const { zxdg_output_v1_destroy(p); }
  void operator()(zxdg_decoration_manager_v1* p) const { zxdg_decoration_manager_v1_destroy(p); }
  void operator()(zxdg_toplevel_decoration_v1* p) const { zxdg_toplevel_decoration_v1_destroy(p); }
  void operator()(wp_viewporter* p) const { wp_viewporter_destroy(p); }
  void operator()(wp_viewport* p) const { wp_viewport_destroy(p); }
  void operator()(zwlr_layer_shell_v1* p) const {
    zwlr_layer_shell_v1_get_version(p) >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION
        ? zwlr_layer_shell_v1_destroy(p)
        : wl_proxy_destroy(reinterpret_cast<wl_proxy*>(p));
  }
  void operator()(zwlr_layer_surface_v1* p) const { zwlr_layer_surface_v1_destroy(p); }
};

template <class T>
using Proxy = std::unique_ptr<T, EndOfProxy>;
