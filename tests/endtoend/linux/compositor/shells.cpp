// Roles of surfaces: layers and windows, which are given the size of their output.
#include "server.h"

namespace {

const Output* outputOf(wl_resource* resource) {
  return resource != nullptr ? static_cast<const Output*>(wl_resource_get_user_data(resource)) : nullptr;
}

template <class... Values>
void ignore(wl_client*, wl_resource*, Values...) {}

constexpr struct zwlr_layer_surface_v1_interface layerRequests {
  ignore<std::uint32_t, std::uint32_t>, ignore<std::uint32_t>, ignore<std::int32_t>,
      ignore<std::int32_t, std::int32_t, std::int32_t, std::int32_t>, ignore<std::uint32_t>,
      ignore<wl_resource*>, ignore<std::uint32_t>, destroyResource, ignore<std::uint32_t>
};

void getLayer(wl_client* client, wl_resource* shell, std::uint32_t id, wl_resource* on, wl_resource* output,
              std::uint32_t, const char*) {
  Surface* const surface = surfaceOf(on);
  surface->output = outputOf(output);
  surface->layer =
      wl_resource_create(client, &zwlr_layer_surface_v1_interface, wl_resource_get_version(shell), id);
  wl_resource_set_implementation(surface->layer, &layerRequests, surface, nullptr);
}

constexpr struct zwlr_layer_shell_v1_interface layerShellRequests { getLayer, destroyResource };

void setFullscreen(wl_client*, wl_resource* window, wl_resource* output) {
  surfaceOf(window)->output = outputOf(output);
}

constexpr struct xdg_toplevel_interface windowRequests {
  destroyResource, ignore<wl_resource*>, ignore<const char*>, ignore<const char*>,
      ignore<wl_resource*, std::uint32_t, std::int32_t, std::int32_t>, ignore<wl_resource*, std::uint32_t>,
      ignore<wl_resource*, std::uint32_t, std::uint32_t>, ignore<std::int32_t, std::int32_t>,
      ignore<std::int32_t, std::int32_t>, ignore<>, ignore<>, setFullscreen, ignore<>, ignore<>
};

void getWindow(wl_client* client, wl_resource* base, std::uint32_t id) {
  Surface* const surface = surfaceOf(base);
  surface->window = wl_resource_create(client, &xdg_toplevel_interface, wl_resource_get_version(base), id);
  wl_resource_set_implementation(surface->window, &windowRequests, surface, nullptr);
}

constexpr struct xdg_surface_interface windowBaseRequests {
  destroyResource, getWindow, ignore<std::uint32_t, wl_resource*, wl_resource*>,
      ignore<std::int32_t, std::int32_t, std::int32_t, std::int32_t>, ignore<std::uint32_t>
};

void getWindowBase(wl_client* client, wl_resource* shell, std::uint32_t id, wl_resource* on) {
  Surface* const surface = surfaceOf(on);
  surface->windowBase =
      wl_resource_create(client, &xdg_surface_interface, wl_resource_get_version(shell), id);
  wl_resource_set_implementation(surface->windowBase, &windowBaseRequests, surface, nullptr);
}

constexpr struct xdg_wm_base_interface windowShellRequests {
  destroyResource, ignore<std::uint32_t>, getWindowBase, ignore<std::uint32_t>
};

void bindLayers(wl_client* client, void* server, std::uint32_t version, std::uint32_t id) {
  wl_resource* const resource =
      wl_resource_create(client, &zwlr_layer_shell_v1_interface, static_cast<int>(version), id);
  wl_resource_set_implementation(resource, &layerShellRequests, server, nullptr);
}

void bindWindows(wl_client* client, void* server, std::uint32_t version, std::uint32_t id) {
  wl_resource* const resource =
      wl_resource_create(client, &xdg_wm_base_interface, static_cast<int>(version), id);
  wl_resource_set_implementation(resource, &windowShellRequests, server, nullptr);
  xdg_wm_base_send_ping(resource, 1);
}

}  // namespace

void configureOnce(Surface& surface) {
  if (surface.isConfigured) {
    return;
  }
  const int width = surface.output != nullptr ? surface.output->width : 0;
  const int height = surface.output != nullptr ? surface.output->height : 0;
  if (surface.layer != nullptr) {
    zwlr_layer_surface_v1_send_configure(surface.layer, ++surface.server->serial,
                                         static_cast<std::uint32_t>(width),
                                         static_cast<std::uint32_t>(height));
    surface.isConfigured = true;
  } else if (surface.window != nullptr) {
    wl_array states;
    wl_array_init(&states);
    xdg_toplevel_send_configure(surface.window, width, height, &states);
    wl_array_release(&states);
    xdg_surface_send_configure(surface.windowBase, ++surface.server->serial);
    surface.isConfigured = true;
  }
}

void offerLayers(Server& server) {
  wl_global_create(server.display, &zwlr_layer_shell_v1_interface, 4, &server, bindLayers);
}

void offerWindows(Server& server) {
  wl_global_create(server.display, &xdg_wm_base_interface, 1, &server, bindWindows);
}
