// The window of the saver on an X display: one of its own, or one that another program owns.
#pragma once

#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "graphics/linux/nativeWindow.h"
#include "host/linux/windowKind.h"
#include "host/linux/x11/framePresenter.h"
#include "host/linux/x11/x11Connection.h"
#include "host/linux/x11/x11Facts.h"

// To the saver its window is the whole screen: rectangle() starts at (0, 0) and the monitors are those parts
// of the real ones that lie in the window, in its coordinates. The size is that at the start and stays.
class X11Window : public xpliNativeWindow {
 public:
  struct Description {
    WindowKind kind = WindowKind::fullRun;
    xcb_window_t id = 0;
    int width = 0, height = 0;  // pixels
    std::vector<xplEdges> monitors;
    PixelFormat format;
    xcb_atom_t closeMessage = XCB_NONE;  // ordinary: what the window manager sends for the close button
  };

  // The window of the description must exist; one of our own is destroyed with the object. The connection is
  // borrowed and must outlive it.
  X11Window(X11Connection& connection, const X11Facts& facts, Description description);
  ~X11Window() override;
  X11Window(const X11Window&) = delete;
  X11Window& operator=(const X11Window&) = delete;

  std::uintptr_t id() const override { return m_description.id; }
  xplEdges rectangle() const override { return {0, 0, m_description.width, m_description.height}; }
  std::vector<xplEdges> monitors() const override { return m_description.monitors; }
  std::unique_ptr<PixelMemory> makePixelMemory(int width, int height) override;
  // Before the full run's window is shown this is what the screen shows.
  void copyContent(PixelMemory& memory) override;
  void present(PixelMemory& memory, std::span<const xplEdges> parts) override;
  bool takeContentLost() override { return std::exchange(m_isContentLost, false); }
  void waitUntilShown() override { m_presenter.waitUntilRead(); }
  int dotsPerInch() const override { return m_dotsPerInch; }

  WindowKind kind() const { return m_description.kind; }
  xcb_window_t windowId() const { return m_description.id; }
  xcb_atom_t closeMessage() const { return m_description.closeMessage; }
  FramePresenter& presenter() { return m_presenter; }

  // The monitors are these from now on: screen coordinates, the main one first, never empty.
  void takeMonitors(std::vector<xplEdges> monitors) { m_description.monitors = std::move(monitors); }
  // Tells that the display no longer has what was presented.
  void loseContent() { m_isContentLost = true; }
  // Puts a window of our own on the screen.
  void show();
  // The window has become this large: what the saver does not draw on becomes black.
  void blackenOutside(int width, int height);
  // The screen has become this large: the full run goes on covering it.
  void coverScreen(int width, int height);
  // Tells that the window exists no more, so that nothing is sent to it.
  void forget() { m_exists = false; }

 private:
  X11Connection& m_connection;
  Description m_description;
  int m_dotsPerInch;
  FramePresenter m_presenter;
  bool m_isOnScreen;
  bool m_exists = true;
  bool m_isContentLost = false;
};
