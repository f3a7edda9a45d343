// Outputs: each tells its place, its mode and that its pixels are logical ones.
#include "server.h"

namespace {

constexpr struct wl_output_interface requests { destroyResource };

void bind(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
  const auto& output = *static_cast<const Output*>(data);
  wl_resource* const resource =
      wl_resource_create(client, &wl_output_interface, static_cast<int>(version), id);
  wl_resource_set_implementation(resource, &requests, data, nullptr);
  wl_output_send_geometry(resource, output.x, output.y, 0, 0, WL_OUTPUT_SUBPIXEL_UNKNOWN, "none", "none",
                          WL_OUTPUT_TRANSFORM_NORMAL);
  wl_output_send_mode(resource, WL_OUTPUT_MODE_CURRENT, output.width, output.height, 60000);
  wl_output_send_scale(resource, 1);
  wl_output_send_done(resource);
}

}  // namespace

void offerOutput(Server& server, Output& output) {
  output.global = wl_global_create(server.display, &wl_output_interface, 3, &output, bind);
}
