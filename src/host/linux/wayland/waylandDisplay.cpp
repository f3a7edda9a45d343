// Implements the saver's window on a Wayland compositor, from the first question on.
#include "host/linux/wayland/waylandDisplay.h"

#include "host/linux/hostFailure.h"
#include "host/linux/wayland/waylandLink.h"
#include "host/linux/wayland/waylandWindow.h"

namespace {

class WaylandStage : public SaverStage {
 public:
  WaylandStage(WaylandConnection& connection, std::unique_ptr<WaylandGlobals> globals,
               const HostRequest& request)
      : m_connection(connection),
        m_globals(std::move(globals)),
        m_window(m_connection, *m_globals, request),
        m_mode(request.mode) {}

  xpliNativeWindow& window() override { return m_window; }
  WindowKind kind() const override { return m_window.kind(); }
  HostRequest::Mode mode() const override { return m_mode; }
  bool isQuiet() const override { return false; }
  std::unique_ptr<DisplayLink> show(MessagePump& pump, StopSignals& signals) override {
    return std::make_unique<WaylandLink>(m_connection, *m_globals, signals, m_window, pump);
  }
  // The compositor tells it when the surface comes to lie under the pointer.
  std::optional<Point> pointer() const override { return std::nullopt; }

 private:
  WaylandConnection& m_connection;
  std::unique_ptr<WaylandGlobals> m_globals;
  WaylandWindow m_window;
  HostRequest::Mode m_mode;
};

}  // namespace

std::unique_ptr<SaverStage> WaylandDisplay::open(const HostRequest& request, StopSignals& signals) {
  const std::string failure = "cannot connect to Wayland display " + m_connection.displayName() +
                              ": check that WAYLAND_DISPLAY names a running compositor, or use --x11";
  if (!m_connection.isUsable()) {
    throw HostFailure(failure);
  }
  m_connection.endWaitsOn(signals);
  auto globals = std::make_unique<WaylandGlobals>(m_connection);
  if (!globals->learn()) {
    if (signals.arrived()) {
      return nullptr;
    }
    throw HostFailure(failure);
  }
  return std::make_unique<WaylandStage>(m_connection, std::move(globals), request);
}
