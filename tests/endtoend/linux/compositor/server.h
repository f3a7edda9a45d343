// A Wayland compositor without a screen that watches its client closely, and does as it is told.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <wayland-server.h>
#include <wlr-layer-shell-server.h>
#include <xdg-shell-server.h>

struct Rectangle {
  int left = 0, top = 0, right = 0, bottom = 0;
};

struct Output {
  int x = 0, y = 0, width = 0, height = 0;
  wl_global* global = nullptr;
};

struct Server;

// What a surface shows, and how the client treats it.
struct Surface {
  Server* server = nullptr;
  wl_resource* resource = nullptr;
  wl_resource* layer = nullptr;  // its role; null where it has another or none
  wl_resource* window = nullptr;
  wl_resource* windowBase = nullptr;
  const Output* output = nullptr;
  bool isConfigured = false;

  wl_resource* attached = nullptr;  // since the last commit
  std::vector<Rectangle> damage;
  std::vector<wl_resource*> callbacks;  // not answered yet

  wl_resource* held = nullptr;  // the buffer that is read until the next one comes
  std::uint64_t heldHash = 0;
  int commits = 0;  // with a buffer
  wl_listener heldGone{};
  int width = 0, height = 0;
  std::vector<std::uint32_t>
      shown;  // what the damage told of; differs from the buffer where it told too little
};

struct Server {
  wl_display* display = nullptr;
  std::vector<std::unique_ptr<Output>> outputs;
  std::vector<Surface*> surfaces;  // in the order of their making
  std::vector<wl_resource*> pointers, keyboards, touches;
  wl_event_source* timer = nullptr;
  int wantsFrames = 2;  // 0: of no surface, 1: of the first alone, 2: of all
  bool isPointerInside = false;
  std::string cursor = "unset";
  int commits = 0;  // with a buffer
  int torn = 0;     // buffers that were written while they were read
  int untold = 0;   // frames that changed more than their damage said
  std::uint32_t serial = 0;
};

// Each offers one kind of thing.
void offerCompositor(Server& server);
void offerOutput(Server& server, Output& output);
void offerLayers(Server& server);
void offerWindows(Server& server);
void offerSeat(Server& server);

// A surface was committed: answers what its role asks for.
void configureOnce(Surface& surface);
void sendFrameCallbacks(Server& server);

// The surface of a wl_surface; null for null.
Surface* surfaceOf(wl_resource* resource);
// For requests of which only the end of the object matters.
void destroyResource(wl_client* client, wl_resource* resource);

// Offers one more output, given as WIDTHxHEIGHT+X+Y; nothing where it is something else.
void addOutput(Server& server, const std::string& geometry);
// Does what a line says, or answers it; "done" where there is no other answer.
std::string obey(Server& server, const std::string& line);
