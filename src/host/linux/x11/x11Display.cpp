// Implements the saver's window on an X display, from the first question on.
#include "host/linux/x11/x11Display.h"

#include <string>
#include <utility>

#include "host/linux/hostFailure.h"
#include "host/linux/x11/makeX11Window.h"
#include "host/linux/x11/quietRun.h"
#include "host/linux/x11/smallWindow.h"
#include "host/linux/x11/x11Link.h"
#include "support/log.h"

namespace {

class X11Stage : public SaverStage {
 public:
  X11Stage(X11Connection& connection, X11Facts facts, const HostRequest& request)
      : m_connection(connection),
        m_facts(std::move(facts)),
        m_window(makeX11Window(connection, m_facts, request)),
        m_mode(modeIn(m_facts, request.mode)),
        m_isQuiet(isQuietIn(m_facts, m_mode)) {
    if (m_mode != request.mode) {
      logInfo().addf("The window of %dx%d is small for this screen: it shows the preview",
                     m_facts.window->width, m_facts.window->height);
    }
    if (m_isQuiet) {
      logInfo().addf("The window at %d,%d is not the one over the main monitor: the sky is silent here",
                     m_facts.window->x, m_facts.window->y);
    }
  }

  xpliNativeWindow& window() override { return *m_window; }
  WindowKind kind() const override { return m_window->kind(); }
  HostRequest::Mode mode() const override { return m_mode; }
  bool isQuiet() const override { return m_isQuiet; }
  std::unique_ptr<DisplayLink> show(MessagePump& pump, StopSignals& signals) override {
    return std::make_unique<X11Link>(m_connection, signals, *m_window, pump, m_facts);
  }
  std::optional<Point> pointer() const override { return Point{m_facts.pointerX, m_facts.pointerY}; }

 private:
  X11Connection& m_connection;
  X11Facts m_facts;
  std::unique_ptr<X11Window> m_window;
  HostRequest::Mode m_mode;
  bool m_isQuiet;
};

}  // namespace

void X11Display::check() const {
  if (m_connection.isUsable()) {
    return;
  }
  throw HostFailure(m_connection.displayName().empty()
                        ? std::string("no display: set DISPLAY to that of your session, such as :0")
                        : "cannot open display " + m_connection.displayName() +
                              ": check that DISPLAY names a running X server that lets you in");
}

std::unique_ptr<SaverStage> X11Display::open(const HostRequest& request, StopSignals& signals) {
  check();
  m_connection.endWaitsOn(signals);
  X11Facts facts = X11Facts::collect(m_connection, foreignWindowOf(m_connection, request));
  if (signals.arrived()) {
    return nullptr;
  }
  check();
  return std::make_unique<X11Stage>(m_connection, std::move(facts), request);
}
