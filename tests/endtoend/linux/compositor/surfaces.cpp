// Surfaces: compares every frame with what its damage told, and every buffer with what it was when it was
// given.
#include <algorithm>

#include "server.h"

namespace {

std::uint64_t hashOf(wl_shm_buffer* buffer) {
  const auto* words = static_cast<const std::uint32_t*>(wl_shm_buffer_get_data(buffer));
  const std::size_t count = static_cast<std::size_t>(wl_shm_buffer_get_stride(buffer)) / 4 *
                            static_cast<std::size_t>(wl_shm_buffer_get_height(buffer));
  std::uint64_t hash = 1469598103934665603U;
  wl_shm_buffer_begin_access(buffer);
  for (std::size_t i = 0; i < count; ++i) {
    hash = (hash ^ words[i]) * 1099511628211U;
  }
  wl_shm_buffer_end_access(buffer);
  return hash;
}

void letGo(Surface& surface) {
  if (surface.held == nullptr) {
    return;
  }
  wl_shm_buffer* const buffer = wl_shm_buffer_get(surface.held);
  surface.server->torn += hashOf(buffer) != surface.heldHash ? 1 : 0;
  wl_buffer_send_release(surface.held);
  wl_list_remove(&surface.heldGone.link);
  surface.held = nullptr;
}

void noteHeldGone(wl_listener* listener, void*) {
  Surface* surface = nullptr;
  surface = wl_container_of(listener, surface, heldGone);
  wl_list_remove(&surface->heldGone.link);
  surface->held = nullptr;
}

void copyDamage(Surface& surface, const std::uint32_t* pixels) {
  for (const Rectangle& part : surface.damage) {
    const int left = std::max(part.left, 0);
    const int right = std::min(part.right, surface.width);
    for (int y = std::max(part.top, 0); y < std::min(part.bottom, surface.height) && left < right; ++y) {
      const std::ptrdiff_t row = std::ptrdiff_t{y} * surface.width;
      std::copy(pixels + row + left, pixels + row + right, surface.shown.begin() + row + left);
    }
  }
}

void show(Surface& surface) {
  wl_shm_buffer* const buffer = wl_shm_buffer_get(surface.attached);
  const int width = wl_shm_buffer_get_width(buffer);
  const int height = wl_shm_buffer_get_height(buffer);
  if (width != surface.width || height != surface.height) {
    constexpr std::uint32_t nothing = 0x12345678;
    surface.width = width;
    surface.height = height;
    surface.shown.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), nothing);
  }
  const auto* const pixels = static_cast<const std::uint32_t*>(wl_shm_buffer_get_data(buffer));
  wl_shm_buffer_begin_access(buffer);
  copyDamage(surface, pixels);
  surface.server->untold += std::equal(surface.shown.begin(), surface.shown.end(), pixels) ? 0 : 1;
  wl_shm_buffer_end_access(buffer);
  letGo(surface);
  surface.held = surface.attached;
  surface.heldHash = hashOf(buffer);
  surface.heldGone.notify = noteHeldGone;
  wl_resource_add_destroy_listener(surface.held, &surface.heldGone);
  ++surface.commits;
  ++surface.server->commits;
}

void attach(wl_client*, wl_resource* resource, wl_resource* buffer, int, int) {
  surfaceOf(resource)->attached = buffer;
}

void damage(wl_client*, wl_resource* resource, int x, int y, int width, int height) {
  surfaceOf(resource)->damage.push_back({x, y, x + width, y + height});
}

void forgetCallback(wl_resource* callback) {
  if (Surface* const surface = surfaceOf(callback)) {
    std::erase(surface->callbacks, callback);
  }
}

void frame(wl_client* client, wl_resource* resource, std::uint32_t id) {
  wl_resource* const callback = wl_resource_create(client, &wl_callback_interface, 1, id);
  wl_resource_set_implementation(callback, nullptr, surfaceOf(resource), forgetCallback);
  surfaceOf(resource)->callbacks.push_back(callback);
}

void commit(wl_client*, wl_resource* resource) {
  Surface& surface = *surfaceOf(resource);
  if (surface.attached != nullptr) {
    show(surface);
    surface.attached = nullptr;
  }
  surface.damage.clear();
  configureOnce(surface);
}

void ignoreRegion(wl_client*, wl_resource*, wl_resource*) {}
void ignoreNumber(wl_client*, wl_resource*, std::int32_t) {}

void forget(wl_resource* resource) {
  const std::unique_ptr<Surface> surface(surfaceOf(resource));
  if (surface->held != nullptr) {
    wl_list_remove(&surface->heldGone.link);
  }
  for (wl_resource* callback : surface->callbacks) {
    wl_resource_set_user_data(callback, nullptr);
  }
  std::erase(surface->server->surfaces, surface.get());
}

constexpr struct wl_surface_interface surfaceRequests {
  destroyResource, attach, damage, frame, ignoreRegion, ignoreRegion, commit, ignoreNumber, ignoreNumber,
      damage, nullptr
};

void createSurface(wl_client* client, wl_resource* resource, std::uint32_t id) {
  auto surface = std::make_unique<Surface>();
  surface->server = static_cast<Server*>(wl_resource_get_user_data(resource));
  surface->resource =
      wl_resource_create(client, &wl_surface_interface, wl_resource_get_version(resource), id);
  surface->server->surfaces.push_back(surface.get());
  wl_resource* const made = surface->resource;
  wl_resource_set_implementation(made, &surfaceRequests, surface.release(), forget);
}

constexpr struct wl_compositor_interface compositorRequests { createSurface, nullptr };

void bind(wl_client* client, void* server, std::uint32_t version, std::uint32_t id) {
  wl_resource* const resource =
      wl_resource_create(client, &wl_compositor_interface, static_cast<int>(version), id);
  wl_resource_set_implementation(resource, &compositorRequests, server, nullptr);
}

}  // namespace

Surface* surfaceOf(wl_resource* resource) {
  return resource != nullptr ? static_cast<Surface*>(wl_resource_get_user_data(resource)) : nullptr;
}

void destroyResource(wl_client*, wl_resource* resource) {
  wl_resource_destroy(resource);
}

void sendFrameCallbacks(Server& server) {
  for (Surface* surface : server.surfaces) {
    if (server.wantsFrames == 0 || (server.wantsFrames == 1 && surface != server.surfaces[0])) {
      continue;
    }
    while (!surface->callbacks.empty()) {
      wl_callback_send_done(surface->callbacks.front(), 0);
      wl_resource_destroy(surface->callbacks.front());
    }
  }
}

void offerCompositor(Server& server) {
  wl_global_create(server.display, &wl_compositor_interface, 4, &server, bind);
}
