// Implements the look at what a compositor offers.
#include "host/linux/wayland/waylandOffers.h"

#include "host/linux/hostFailure.h"

void checkOffers(const WaylandGlobals& globals, WindowKind kind, const std::string& display) {
  const char* lack = nullptr;
  if (globals.compositor() == nullptr) {
    lack = "surfaces (wl_compositor)";
  } else if (globals.sharedMemory() == nullptr) {
    lack = "shared memory (wl_shm)";
  } else if (globals.desktopShell() == nullptr && globals.layerShell() == nullptr) {
    lack = "windows (xdg_wm_base) or layers (zwlr_layer_shell_v1)";
  }
  if (lack != nullptr) {
    throw HostFailure("the compositor on Wayland display " + display + " offers no " + lack +
                      ": use another compositor, or the X display with --x11");
  }
  if (kind == WindowKind::ordinary && globals.desktopShell() == nullptr) {
    throw HostFailure("the compositor on Wayland display " + display +
                      " offers no windows (xdg_wm_base): run without --window, or use --x11");
  }
}

OutputLayout layoutOf(const WaylandGlobals& globals, const HostRequest& request, const std::string& display) {
  const bool canScale = globals.viewporter() != nullptr;
  const auto outputs = globals.knownOutputs();
  if (request.mode == HostRequest::Mode::ordinaryWindow) {
    return {.space = {0, 0, commonScaleOf(outputs, canScale)},
            .width = request.width,
            .height = request.height,
            .monitors = {{0, 0, request.width, request.height}}};
  }
  const auto layout = layOutOutputs(outputs, canScale);
  if (!layout) {
    throw HostFailure("there is no screen on Wayland display " + display +
                      ": start the saver when one is connected");
  }
  return *layout;
}
