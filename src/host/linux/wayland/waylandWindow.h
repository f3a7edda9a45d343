// The saver's window on Wayland: one picture, shown by a surface on each output or by one ordinary window.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "graphics/linux/nativeWindow.h"
#include "host/linux/commandLine.h"
#include "host/linux/wayland/saverSurface.h"
#include "host/linux/windowKind.h"

// The picture keeps the size that it has at the start. Outputs that come, move or grow show the part of it on
// which they lie, and black beside it.
class WaylandWindow : public xpliNativeWindow {
 public:
  // Connection and globals are borrowed. Throws HostFailure where the compositor cannot show it.
  WaylandWindow(WaylandConnection& connection, WaylandGlobals& globals, const HostRequest& request);
  ~WaylandWindow() override;
  WaylandWindow(const WaylandWindow&) = delete;
  WaylandWindow& operator=(const WaylandWindow&) = delete;

  std::uintptr_t id() const override { return 0; }
  xplEdges rectangle() const override { return {0, 0, m_layout.width, m_layout.height}; }
  std::vector<xplEdges> monitors() const override { return m_layout.monitors; }
  std::unique_ptr<PixelMemory> makePixelMemory(int width, int height) override;
  // A compositor does not tell what it shows: black.
  void copyContent(PixelMemory& memory) override;
  // Takes the parts over; the memory is not read later.
  void present(PixelMemory& memory, std::span<const xplEdges> parts) override;
  bool takeContentLost() override;
  void waitUntilShown() override {}
  int dotsPerInch() const override;

  WindowKind kind() const { return m_kind; }

  // Puts the surfaces on the screens.
  void show();
  // True while a surface wants to show a frame.
  bool wantsFrame() const;
  // Shows what was presented, where the compositor wants to see it already. True where that is on a screen at
  // least.
  bool commit();
  // Acts on what was dispatched: outputs that came and went, surfaces that were closed.
  void follow();
  // True once after somebody has closed a window of the saver.
  bool takeClosing() { return std::exchange(m_isClosing, false); }
  // True once after monitors() has changed.
  bool takeMonitorsChanged() { return std::exchange(m_haveMonitorsChanged, false); }
  // Why the run cannot go on; empty where it can.
  const std::string& failure() const { return m_failure; }

 private:
  SaverSurface::Place placeOf(const OutputFacts& output) const;
  std::unique_ptr<SurfaceRole> makeRole(const OutputFacts& output, wl_surface* surface,
                                        SurfaceRoleEvents& events) const;
  void cover(const OutputFacts& output);
  void openOrdinary();
  void coverOutputs();
  void learnMonitors();
  void dropClosed();
  void judgeClosed();

  WaylandConnection& m_connection;
  WaylandGlobals& m_globals;
  WindowKind m_kind;
  OutputLayout m_layout;
  std::vector<std::unique_ptr<SaverSurface>> m_surfaces;
  // Outputs whose surface the compositor took away. Most often the output itself goes too; whether it does is
  // known when the callback has been called.
  std::vector<std::uint32_t> m_bared;
  Proxy<wl_callback> m_baredQuestion;
  bool m_isShown = false;
  bool m_isContentLost = false;
  bool m_isClosing = false;
  bool m_haveMonitorsChanged = false;
  std::string m_failure;
};
