// Asks the display all that the program needs to know, in batches.
#include "host/linux/x11/x11Facts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

#include <xcb/bigreq.h>
#include <xcb/dpms.h>
#include <xcb/randr.h>
#include <xcb/shm.h>

namespace {

// Drawing through shared memory can be switched off, for displays that get it wrong.
bool sharedMemoryIsWanted() {
  const char* refusal = std::getenv("LUNARIA_NO_SHM");
  return refusal == nullptr || *refusal == '\0' || std::string_view(refusal) == "0";
}

// The first questions: none needs another's answer.
struct BasicQuestions {
  BasicQuestions(xcb_connection_t* c, xcb_window_t root, xcb_window_t window) {
    xcb_prefetch_extension_data(c, &xcb_randr_id);
    xcb_prefetch_extension_data(c, &xcb_shm_id);
    xcb_prefetch_extension_data(c, &xcb_dpms_id);
    xcb_prefetch_maximum_request_length(c);
    geometryOfRoot = xcb_get_geometry(c, root);
    constexpr std::uint32_t most = 16384;  // words
    resources = xcb_get_property(c, 0, root, XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 0, most);
    if (window != 0) {
      attributes = xcb_get_window_attributes(c, window);
      geometry = xcb_get_geometry(c, window);
      position = xcb_translate_coordinates(c, window, root, 0, 0);
    }
    pointer = xcb_query_pointer(c, root);
  }

  xcb_get_geometry_cookie_t geometryOfRoot;
  xcb_get_property_cookie_t resources;
  xcb_get_window_attributes_cookie_t attributes{};
  xcb_get_geometry_cookie_t geometry{};
  xcb_translate_coordinates_cookie_t position{};
  xcb_query_pointer_cookie_t pointer;
};

std::string textOf(const xcb_get_property_reply_t* reply) {
  if (reply == nullptr || reply->format != 8) {
    return {};
  }
  const auto* text = static_cast<const char*>(xcb_get_property_value(reply));
  return {text, static_cast<std::size_t>(xcb_get_property_value_length(reply))};
}

std::optional<X11Facts::ForeignWindow> askAboutWindow(X11Connection& connection,
                                                      const BasicQuestions& questions, xcb_window_t id) {
  const auto attributes = connection.await<xcb_get_window_attributes_reply_t>(questions.attributes);
  const auto geometry = connection.await<xcb_get_geometry_reply_t>(questions.geometry);
  const auto position = connection.await<xcb_translate_coordinates_reply_t>(questions.position);
  if (!attributes || !geometry || !position) {
    return std::nullopt;
  }
  X11Facts::ForeignWindow window;
  window.id = id;
  window.isRoot = id == connection.screen().root;
  window.visual = attributes->visual;
  window.depth = geometry->depth;
  window.canBeDrawnOn = attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
  window.x = position->dst_x;
  window.y = position->dst_y;
  window.width = geometry->width;
  window.height = geometry->height;
  return window;
}

std::optional<xcb_dpms_get_version_cookie_t> askPower(xcb_connection_t* c) {
  const auto* power = xcb_get_extension_data(c, &xcb_dpms_id);
  if (power == nullptr || power->present == 0) {
    return std::nullopt;
  }
  return xcb_dpms_get_version(c, 1, 2);
}

std::optional<X11Facts::PowerManagement> hearPower(X11Connection& connection,
                                                   std::optional<xcb_dpms_get_version_cookie_t> asked) {
  const auto version = asked ? connection.await<xcb_dpms_get_version_reply_t>(*asked) : nullptr;
  if (!version) {
    return std::nullopt;
  }
  const int major = version->server_major_version;
  const bool tells = major > 1 || (major == 1 && version->server_minor_version >= 2);
  return X11Facts::PowerManagement{xcb_get_extension_data(connection.get(), &xcb_dpms_id)->major_opcode,
                                   tells};
}

// The second questions: they need to know whether the display has these extensions.
void askExtensions(X11Connection& connection, xcb_window_t root, X11Facts& facts) {
  xcb_connection_t* c = connection.get();
  const auto* randr = xcb_get_extension_data(c, &xcb_randr_id);
  const auto* sharing = xcb_get_extension_data(c, &xcb_shm_id);
  const auto powerAsked = askPower(c);
  const bool hasRandr = randr != nullptr && randr->present != 0;
  const bool hasSharing =
      sharing != nullptr && sharing->present != 0 && connection.isLocal() && sharedMemoryIsWanted();
  xcb_randr_query_version_cookie_t randrVersion{};
  xcb_randr_get_monitors_cookie_t monitors{};
  xcb_shm_query_version_cookie_t sharingVersion{};
  if (hasRandr) {
    randrVersion = xcb_randr_query_version(c, 1, 5);
    monitors = xcb_randr_get_monitors(c, root, 1);
  }
  if (hasSharing) {
    sharingVersion = xcb_shm_query_version(c);
  }
  if (hasRandr) {
    connection.await<xcb_randr_query_version_reply_t>(randrVersion);
    // A display older than this question answers with an error: no monitors.
    facts.firstMonitorEvent = randr->first_event;
    facts.monitors = monitorsOf(connection.await<xcb_randr_get_monitors_reply_t>(monitors).get());
  }
  facts.power = hearPower(connection, powerAsked);
  if (hasSharing) {
    const auto version = connection.await<xcb_shm_query_version_reply_t>(sharingVersion);
    const bool takesFiles = version && (version->major_version > 1 || version->minor_version >= 2);
    if (takesFiles) {
      facts.frameReadEvent = static_cast<std::uint8_t>(sharing->first_event + XCB_SHM_COMPLETION);
    }
  }
}

}  // namespace

X11Facts X11Facts::collect(X11Connection& connection, xcb_window_t window) {
  const xcb_window_t root = connection.screen().root;
  const BasicQuestions questions(connection.get(), root, window);
  X11Facts facts;
  facts.screenWidth = connection.screen().width_in_pixels;
  facts.screenHeight = connection.screen().height_in_pixels;
  if (const auto geometry = connection.await<xcb_get_geometry_reply_t>(questions.geometryOfRoot)) {
    facts.screenWidth = geometry->width;
    facts.screenHeight = geometry->height;
  }
  const auto resources = connection.await<xcb_get_property_reply_t>(questions.resources);
  facts.dotsPerInch = dotsPerInchOf(textOf(resources.get())).value_or(facts.dotsPerInch);
  if (window != 0) {
    facts.window = askAboutWindow(connection, questions, window);
  }
  if (const auto pointer = connection.await<xcb_query_pointer_reply_t>(questions.pointer)) {
    facts.pointerX = pointer->root_x;
    facts.pointerY = pointer->root_y;
    askExtensions(connection, root, facts);
  }
  if (facts.monitors.empty()) {
    facts.monitors.push_back({0, 0, facts.screenWidth, facts.screenHeight});
  }
  return facts;
}

std::optional<int> dotsPerInchOf(const std::string& resources) {
  constexpr std::string_view name = "Xft.dpi:";
  std::size_t at = resources.rfind(name, 0) == 0 ? 0 : resources.find("\nXft.dpi:");
  if (at == std::string::npos) {
    return std::nullopt;
  }
  at = resources.find_first_not_of(" \t", resources.find(':', at) + 1);
  if (at == std::string::npos) {
    return std::nullopt;
  }
  double value = 0;
  const char* end = resources.data() + resources.size();
  if (std::from_chars(resources.data() + at, end, value).ec != std::errc{} ||
      !(value >= 24 && value <= 960)) {
    return std::nullopt;
  }
  return static_cast<int>(std::lround(value));
}

std::vector<xplEdges> monitorsOf(const xcb_randr_get_monitors_reply_t* reply) {
  std::vector<xplEdges> monitors;
  if (reply == nullptr) {
    return monitors;
  }
  for (auto i = xcb_randr_get_monitors_monitors_iterator(reply); i.rem > 0; xcb_randr_monitor_info_next(&i)) {
    const auto& monitor = *i.data;
    if (monitor.width > 0 && monitor.height > 0) {
      const xplEdges edges{monitor.x, monitor.y, monitor.x + monitor.width, monitor.y + monitor.height};
      monitors.insert(monitor.primary != 0 ? monitors.begin() : monitors.end(), edges);
    }
  }
  return monitors;
}
