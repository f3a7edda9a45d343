// A seat with a pointer, a keyboard and a touch screen.
#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

#include "server.h"

namespace {

Server& serverOf(wl_resource* resource) {
  return *static_cast<Server*>(wl_resource_get_user_data(resource));
}

void forgetPointer(wl_resource* resource) {
  std::erase(serverOf(resource).pointers, resource);
}
void forgetKeyboard(wl_resource* resource) {
  std::erase(serverOf(resource).keyboards, resource);
}
void forgetTouch(wl_resource* resource) {
  std::erase(serverOf(resource).touches, resource);
}

void setCursor(wl_client*, wl_resource* pointer, std::uint32_t, wl_resource* surface, int, int) {
  serverOf(pointer).cursor = surface != nullptr ? "shown" : "hidden";
}

constexpr struct wl_pointer_interface pointerRequests { setCursor, destroyResource };
constexpr struct wl_keyboard_interface keyboardRequests { destroyResource };
constexpr struct wl_touch_interface touchRequests { destroyResource };

void getPointer(wl_client* client, wl_resource* seat, std::uint32_t id) {
  Server& server = serverOf(seat);
  server.pointers.push_back(
      wl_resource_create(client, &wl_pointer_interface, wl_resource_get_version(seat), id));
  wl_resource_set_implementation(server.pointers.back(), &pointerRequests, &server, forgetPointer);
}

void getKeyboard(wl_client* client, wl_resource* seat, std::uint32_t id) {
  Server& server = serverOf(seat);
  server.keyboards.push_back(
      wl_resource_create(client, &wl_keyboard_interface, wl_resource_get_version(seat), id));
  wl_resource_set_implementation(server.keyboards.back(), &keyboardRequests, &server, forgetKeyboard);
  const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  wl_keyboard_send_keymap(server.keyboards.back(), WL_KEYBOARD_KEYMAP_FORMAT_NO_KEYMAP, nothing, 0);
  ::close(nothing);
}

void getTouch(wl_client* client, wl_resource* seat, std::uint32_t id) {
  Server& server = serverOf(seat);
  server.touches.push_back(
      wl_resource_create(client, &wl_touch_interface, wl_resource_get_version(seat), id));
  wl_resource_set_implementation(server.touches.back(), &touchRequests, &server, forgetTouch);
}

constexpr struct wl_seat_interface requests { getPointer, getKeyboard, getTouch, destroyResource };

void bind(wl_client* client, void* server, std::uint32_t version, std::uint32_t id) {
  wl_resource* const resource = wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id);
  wl_resource_set_implementation(resource, &requests, server, nullptr);
  wl_seat_send_capabilities(
      resource, WL_SEAT_CAPABILITY_POINTER | WL_SEAT_CAPABILITY_KEYBOARD | WL_SEAT_CAPABILITY_TOUCH);
}

}  // namespace

void offerSeat(Server& server) {
  wl_global_create(server.display, &wl_seat_interface, 3, &server, bind);
}
