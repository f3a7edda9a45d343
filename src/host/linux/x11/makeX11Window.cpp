// Makes the saver's windows on an X display.
#include "host/linux/x11/makeX11Window.h"

#include <algorithm>
#include <string_view>

#include "host/linux/hostFailure.h"
#include "support/log.h"

namespace {

constexpr char title[] = "Lunaria";

PixelFormat formatOf(const X11Connection& connection, xcb_visualid_t visual, int depth, const char* what) {
  const auto format = PixelFormat::find(connection.setup(), visual, depth);
  if (!format) {
    throw HostFailure(std::string(what) + " of display " + connection.displayName() + " has " +
                      std::to_string(depth) +
                      " bits a pixel without true colours: use one with 15, 16, 24 or 32 bits");
  }
  return *format;
}

// A pointer that shows nothing; the display keeps it as long as a window uses it.
xcb_cursor_t makeInvisibleCursor(X11Connection& connection) {
  xcb_connection_t* c = connection.get();
  const xcb_pixmap_t pixmap = xcb_generate_id(c);
  xcb_create_pixmap(c, 1, pixmap, connection.screen().root, 1, 1);
  const xcb_gcontext_t context = xcb_generate_id(c);
  const std::uint32_t clear = 0;
  xcb_create_gc(c, context, pixmap, XCB_GC_FOREGROUND, &clear);
  const xcb_rectangle_t all{0, 0, 1, 1};
  xcb_poly_fill_rectangle(c, pixmap, context, 1, &all);
  const xcb_cursor_t cursor = xcb_generate_id(c);
  xcb_create_cursor(c, cursor, pixmap, pixmap, 0, 0, 0, 0, 0, 0, 0, 0);
  xcb_free_gc(c, context);
  xcb_free_pixmap(c, pixmap);
  return cursor;
}

void setText(X11Connection& connection, xcb_window_t window, xcb_atom_t property, std::string_view text) {
  xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(text.size()), text.data());
}

void nameWindow(X11Connection& connection, xcb_window_t window) {
  setText(connection, window, XCB_ATOM_WM_NAME, title);
  setText(connection, window, XCB_ATOM_WM_CLASS, std::string_view("lunaria\0Lunaria\0", 16));
}

xcb_window_t makeOverWholeScreen(X11Connection& connection, const X11Facts& facts) {
  const xcb_screen_t& screen = connection.screen();
  const xcb_window_t window = xcb_generate_id(connection.get());
  const xcb_cursor_t cursor = makeInvisibleCursor(connection);
  // No background: until the first frame the window shows what was there before.
  constexpr std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_BUTTON_PRESS |
                                   XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_EXPOSURE |
                                   XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_VISIBILITY_CHANGE;
  const std::uint32_t values[] = {XCB_GRAVITY_NORTH_WEST, 1, events, cursor};
  xcb_create_window(
      connection.get(), XCB_COPY_FROM_PARENT, window, screen.root, 0, 0,
      static_cast<std::uint16_t>(facts.screenWidth), static_cast<std::uint16_t>(facts.screenHeight), 0,
      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual,
      XCB_CW_BIT_GRAVITY | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK | XCB_CW_CURSOR, values);
  xcb_free_cursor(connection.get(), cursor);
  nameWindow(connection, window);
  // The screen's own size may change while we cover it.
  const std::uint32_t structure = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection.get(), screen.root, XCB_CW_EVENT_MASK, &structure);
  return window;
}

// A fixed size, since the sky keeps the one that it starts with.
void fixSize(X11Connection& connection, xcb_window_t window, int width, int height) {
  constexpr std::uint32_t leastAndMost = 16 | 32;
  std::uint32_t hints[18] = {leastAndMost};
  hints[5] = hints[7] = static_cast<std::uint32_t>(width);
  hints[6] = hints[8] = static_cast<std::uint32_t>(height);
  xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS,
                      XCB_ATOM_WM_SIZE_HINTS, 32, 18, hints);
}

// Asks the window manager to send a message where the window's close button is used, and returns its name.
xcb_atom_t askToBeTold(X11Connection& connection, xcb_window_t window) {
  const auto ask = [&](std::string_view name) {
    return xcb_intern_atom(connection.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
  };
  const auto protocolsAsked = ask("WM_PROTOCOLS");
  const auto closingAsked = ask("WM_DELETE_WINDOW");
  const auto protocols = connection.await<xcb_intern_atom_reply_t>(protocolsAsked);
  const auto closing = connection.await<xcb_intern_atom_reply_t>(closingAsked);
  if (protocols && closing) {
    xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, protocols->atom, XCB_ATOM_ATOM, 32,
                        1, &closing->atom);
  }
  return closing ? closing->atom : xcb_atom_t{XCB_NONE};
}

xcb_window_t makeOrdinary(X11Connection& connection, int width, int height) {
  const xcb_screen_t& screen = connection.screen();
  const xcb_window_t window = xcb_generate_id(connection.get());
  constexpr std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_EXPOSURE |
                                   XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_VISIBILITY_CHANGE;
  const std::uint32_t values[] = {screen.black_pixel, XCB_GRAVITY_NORTH_WEST, events};
  xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, screen.root, 0, 0,
                    static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual,
                    XCB_CW_BACK_PIXEL | XCB_CW_BIT_GRAVITY | XCB_CW_EVENT_MASK, values);
  nameWindow(connection, window);
  fixSize(connection, window, width, height);
  return window;
}

std::string hexadecimal(xcb_window_t id) {
  return stringFormat("0x%x", id);
}

X11Window::Description takeForeign(X11Connection& connection, const X11Facts& facts, xcb_window_t id) {
  if (!facts.window) {
    throw HostFailure("there is no window " + hexadecimal(id) + " on display " + connection.displayName() +
                      ": give the id of one that exists (xwininfo tells it)");
  }
  const auto& window = *facts.window;
  if (!window.canBeDrawnOn) {
    throw HostFailure("window " + hexadecimal(id) +
                      " takes input only and shows nothing: give the id of one that can be drawn on");
  }
  // Only what any number of programs may ask of one window.
  const std::uint32_t events =
      XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_VISIBILITY_CHANGE;
  xcb_change_window_attributes(connection.get(), id, XCB_CW_EVENT_MASK, &events);
  const xplEdges place{window.x, window.y, window.x + window.width, window.y + window.height};
  return {.kind = WindowKind::foreign,
          .id = id,
          .width = window.width,
          .height = window.height,
          .monitors = monitorsInside(facts.monitors, place),
          .format = formatOf(connection, window.visual, window.depth, "the window")};
}

X11Window::Description makeOwn(X11Connection& connection, const X11Facts& facts, const HostRequest& request) {
  const xcb_screen_t& screen = connection.screen();
  const PixelFormat format = formatOf(connection, screen.root_visual, screen.root_depth, "the screen");
  if (request.mode == HostRequest::Mode::ordinaryWindow) {
    const xcb_window_t window = makeOrdinary(connection, request.width, request.height);
    return {.kind = WindowKind::ordinary,
            .id = window,
            .width = request.width,
            .height = request.height,
            .monitors = {{0, 0, request.width, request.height}},
            .format = format,
            .closeMessage = askToBeTold(connection, window)};
  }
  return {.kind = WindowKind::fullRun,
          .id = makeOverWholeScreen(connection, facts),
          .width = facts.screenWidth,
          .height = facts.screenHeight,
          .monitors = facts.monitors,
          .format = format};
}

}  // namespace

xcb_window_t foreignWindowOf(const X11Connection& connection, const HostRequest& request) {
  const bool isForeign =
      request.mode == HostRequest::Mode::preview || request.mode == HostRequest::Mode::foreignRun;
  return isForeign ? request.window.value_or(connection.screen().root) : 0;
}

std::unique_ptr<X11Window> makeX11Window(X11Connection& connection, const X11Facts& facts,
                                         const HostRequest& request) {
  const bool isForeign =
      request.mode == HostRequest::Mode::preview || request.mode == HostRequest::Mode::foreignRun;
  return std::make_unique<X11Window>(
      connection, facts,
      isForeign ? takeForeign(connection, facts, foreignWindowOf(connection, request))
                : makeOwn(connection, facts, request));
}

std::vector<xplEdges> monitorsInside(const std::vector<xplEdges>& monitors, const xplEdges& rectangle) {
  std::vector<xplEdges> parts;
  for (const auto& monitor : monitors) {
    const xplEdges part{std::max(monitor.left, rectangle.left) - rectangle.left,
                        std::max(monitor.top, rectangle.top) - rectangle.top,
                        std::min(monitor.right, rectangle.right) - rectangle.left,
                        std::min(monitor.bottom, rectangle.bottom) - rectangle.top};
    if (part.left < part.right && part.top < part.bottom) {
      parts.push_back(part);
    }
  }
  if (parts.empty()) {
    parts.push_back({0, 0, rectangle.right - rectangle.left, rectangle.bottom - rectangle.top});
  }
  return parts;
}
