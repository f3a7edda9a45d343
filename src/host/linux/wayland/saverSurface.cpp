// Implements a surface of the saver.
#include "host/linux/wayland/saverSurface.h"

#include <algorithm>
#include <cmath>

#include "host/linux/wayland/pictureParts.h"

namespace {

// Called when the compositor wants to see another frame: the callback has done its service.
void noteFrameWanted(void* data, wl_callback*, std::uint32_t) {
  static_cast<Proxy<wl_callback>*>(data)->reset();
}

int rounded(double value) {
  return static_cast<int>(std::lround(value));
}

int pixelsOf(int logical, int usualLogical, int usualPixels, double scale) {
  return logical == usualLogical ? usualPixels : std::max(rounded(logical * scale), 1);
}

}  // namespace

SaverSurface::SaverSurface(const WaylandGlobals& globals, const Place& place, const MakeRole& makeRole)
    : m_sharedMemory(globals.sharedMemory()),
      m_place(place),
      m_surface(wl_compositor_create_surface(globals.compositor())) {
  // Input events name the surface: this is how they find it.
  wl_surface_set_user_data(m_surface.get(), this);
  if (globals.viewporter() != nullptr && place.scale != 1) {
    m_viewport.reset(wp_viewporter_get_viewport(globals.viewporter(), m_surface.get()));
  }
  m_role = makeRole(m_surface.get(), *this);
  // Without a buffer yet: the compositor answers with a size.
  wl_surface_commit(m_surface.get());
}

void SaverSurface::setPlace(const Place& place) {
  const bool isOther = !areSame(place.onPicture, m_place.onPicture) || place.width != m_place.width ||
                       place.height != m_place.height;
  m_place = place;
  if (isOther && m_buffers) {
    renewBuffers();
  }
}

void SaverSurface::hearSize(int width, int height) {
  const int newWidth = width > 0 ? width : m_place.width;
  const int newHeight = height > 0 ? height : m_place.height;
  if (!m_buffers || newWidth != m_width || newHeight != m_height) {
    m_width = newWidth;
    m_height = newHeight;
    renewBuffers();
  }
}

void SaverSurface::renewBuffers() {
  if (m_buffers && !m_isWholeNew) {
    m_former = std::move(m_buffers);
  }
  const xplEdges& usual = m_place.onPicture;
  m_shown = {usual.left, usual.top,
             usual.left + pixelsOf(m_width, m_place.width, usual.right - usual.left, m_place.scale),
             usual.top + pixelsOf(m_height, m_place.height, usual.bottom - usual.top, m_place.scale)};
  m_buffers = std::make_unique<FrameBuffers>(m_sharedMemory, m_shown);
  if (m_viewport) {
    wp_viewport_set_destination(m_viewport.get(), m_width, m_height);
  }
  m_isWholeNew = true;
  m_isContentLost = true;
}

bool SaverSurface::wantsFrame() const {
  return m_buffers && !m_frameWanted && m_buffers->hasRoom() && !m_isClosed;
}

void SaverSurface::draw(const PixelMemory& picture, std::span<const xplEdges> parts) {
  if (m_buffers && !m_buffers->draw(picture, parts)) {
    m_isContentLost = true;
  }
}

bool SaverSurface::commit() {
  static const wl_callback_listener listener{noteFrameWanted};
  if (!m_buffers || !m_buffers->hasChanges() || m_frameWanted || m_isClosed) {
    return false;
  }
  m_buffers->show(m_surface.get());
  m_frameWanted.reset(wl_surface_frame(m_surface.get()));
  wl_callback_add_listener(m_frameWanted.get(), &listener, &m_frameWanted);
  wl_surface_commit(m_surface.get());
  m_isWholeNew = false;
  m_former.reset();
  return true;
}

int SaverSurface::Place::pictureX(double x) const {
  return onPicture.left + rounded(x * scale);
}

int SaverSurface::Place::pictureY(double y) const {
  return onPicture.top + rounded(y * scale);
}
