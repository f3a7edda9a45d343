// Implements the saver's window on Wayland.
#include "host/linux/wayland/waylandWindow.h"

#include <algorithm>
#include <cmath>

#include "graphics/linux/heapPixelMemory.h"
#include "host/linux/wayland/layerRole.h"
#include "host/linux/wayland/pictureParts.h"
#include "host/linux/wayland/waylandOffers.h"
#include "host/linux/wayland/windowRole.h"
#include "support/log.h"

namespace {

constexpr double usualDotsPerInch = 96;

int logicalOf(int pixels, double scale) {
  return std::max(static_cast<int>(std::lround(pixels / scale)), 1);
}

// Marks that the question was answered by destroying it.
void noteAnswer(void* data, wl_callback*, std::uint32_t) {
  static_cast<Proxy<wl_callback>*>(data)->reset();
}

}  // namespace

WaylandWindow::WaylandWindow(WaylandConnection& connection, WaylandGlobals& globals,
                             const HostRequest& request)
    : m_connection(connection),
      m_globals(globals),
      m_kind(request.mode == HostRequest::Mode::ordinaryWindow ? WindowKind::ordinary : WindowKind::fullRun) {
  checkOffers(globals, m_kind, connection.displayName());
  m_layout = layoutOf(globals, request, connection.displayName());
}

WaylandWindow::~WaylandWindow() = default;

std::unique_ptr<PixelMemory> WaylandWindow::makePixelMemory(int width, int height) {
  return std::make_unique<HeapPixelMemory>(width, height);
}

void WaylandWindow::copyContent(PixelMemory& memory) {
  constexpr std::uint32_t black = 0xFF000000;
  std::fill_n(memory.pixels(), memory.stride() * static_cast<std::size_t>(memory.height()), black);
}

void WaylandWindow::present(PixelMemory& memory, std::span<const xplEdges> parts) {
  for (const auto& surface : m_surfaces) {
    surface->draw(memory, parts);
  }
}

bool WaylandWindow::takeContentLost() {
  for (const auto& surface : m_surfaces) {
    m_isContentLost |= surface->takeContentLost();
  }
  return std::exchange(m_isContentLost, false);
}

int WaylandWindow::dotsPerInch() const {
  return std::max(static_cast<int>(std::lround(usualDotsPerInch * m_layout.space.scale)), 1);
}

bool WaylandWindow::wantsFrame() const {
  return std::any_of(m_surfaces.begin(), m_surfaces.end(), [](const auto& s) { return s->wantsFrame(); });
}

bool WaylandWindow::commit() {
  bool isShown = false;
  for (const auto& surface : m_surfaces) {
    isShown |= surface->commit();
  }
  return isShown;
}

void WaylandWindow::show() {
  m_isShown = true;
  if (m_kind == WindowKind::ordinary) {
    openOrdinary();
    return;
  }
  logInfo().addf("Wayland display %s: the screens are covered by %s", m_connection.displayName().c_str(),
                 m_globals.layerShell() != nullptr ? "layers" : "windows");
  coverOutputs();
}

void WaylandWindow::openOrdinary() {
  const double scale = m_layout.space.scale;
  const SaverSurface::Place place{.output = 0,
                                  .onPicture = {0, 0, m_layout.width, m_layout.height},
                                  .width = logicalOf(m_layout.width, scale),
                                  .height = logicalOf(m_layout.height, scale),
                                  .scale = scale};
  m_surfaces.push_back(std::make_unique<SaverSurface>(
      m_globals, place, [&](wl_surface* surface, SurfaceRoleEvents& events) -> std::unique_ptr<SurfaceRole> {
        auto role = std::make_unique<WindowRole>(m_globals.desktopShell(), surface, events);
        role->beOrdinary(place.width, place.height, m_globals.decorations());
        return role;
      }));
}

SaverSurface::Place WaylandWindow::placeOf(const OutputFacts& output) const {
  return {.output = output.name,
          .onPicture = m_layout.space.placeOf(output),
          .width = output.width(),
          .height = output.height(),
          .scale = m_layout.space.scale};
}

std::unique_ptr<SurfaceRole> WaylandWindow::makeRole(const OutputFacts& output, wl_surface* surface,
                                                     SurfaceRoleEvents& events) const {
  wl_output* const target = m_globals.outputNamed(output.name)->get();
  if (m_globals.layerShell() != nullptr) {
    return std::make_unique<LayerRole>(m_globals.layerShell(), surface, target, events);
  }
  auto role = std::make_unique<WindowRole>(m_globals.desktopShell(), surface, events);
  role->coverOutput(target);
  return role;
}

void WaylandWindow::cover(const OutputFacts& output) {
  m_surfaces.push_back(std::make_unique<SaverSurface>(
      m_globals, placeOf(output),
      [&](wl_surface* surface, SurfaceRoleEvents& events) { return makeRole(output, surface, events); }));
}

void WaylandWindow::coverOutputs() {
  std::erase_if(m_surfaces, [&](const auto& surface) {
    return m_globals.outputNamed(surface->place().output) == nullptr;
  });
  for (const OutputFacts& output : m_globals.knownOutputs()) {
    const auto found = std::find_if(m_surfaces.begin(), m_surfaces.end(), [&](const auto& surface) {
      return surface->place().output == output.name;
    });
    if (found != m_surfaces.end()) {
      (*found)->setPlace(placeOf(output));
    } else if (std::find(m_bared.begin(), m_bared.end(), output.name) == m_bared.end()) {
      cover(output);
    }
  }
}

void WaylandWindow::follow() {
  if (!m_isShown) {
    return;
  }
  dropClosed();
  if (m_globals.takeOutputsChanged() && m_kind == WindowKind::fullRun) {
    coverOutputs();
    learnMonitors();
  }
  judgeClosed();
}

// While there is none the last ones stay: one of them may come back.
void WaylandWindow::learnMonitors() {
  auto monitors = monitorsOn(m_layout.space, m_layout.width, m_layout.height, m_globals.knownOutputs());
  if (!monitors.empty() && !std::equal(monitors.begin(), monitors.end(), m_layout.monitors.begin(),
                                       m_layout.monitors.end(), areSame)) {
    m_layout.monitors = std::move(monitors);
    m_haveMonitorsChanged = true;
  }
}

void WaylandWindow::dropClosed() {
  static const wl_callback_listener listener{noteAnswer};
  for (auto at = m_surfaces.begin(); at != m_surfaces.end();) {
    if (!(*at)->isClosed()) {
      ++at;
    } else if (m_kind == WindowKind::fullRun && m_globals.layerShell() != nullptr) {
      m_bared.push_back((*at)->place().output);
      at = m_surfaces.erase(at);
      m_baredQuestion.reset(wl_display_sync(m_connection.get()));
      wl_callback_add_listener(m_baredQuestion.get(), &listener, &m_baredQuestion);
    } else {
      m_isClosing = true;
      ++at;
    }
  }
}

void WaylandWindow::judgeClosed() {
  if (m_bared.empty() || m_baredQuestion) {
    return;
  }
  for (const std::uint32_t output : std::exchange(m_bared, {})) {
    if (m_globals.outputNamed(output) != nullptr) {
      m_failure = "the compositor took the saver off a screen: start it again when nothing else covers that";
    }
  }
}
