// Implements the translation of input into window messages.
#include "host/linux/wayland/waylandSeat.h"

#include <utility>

// What the library calls; each finds its seat in the first value.
struct WaylandSeatListeners {
  static WaylandSeat& seatOf(void* data) { return *static_cast<WaylandSeat*>(data); }

  static void hearCapabilities(void* data, wl_seat*, std::uint32_t capabilities) {
    seatOf(data).takeDevices(capabilities);
  }

  static void hearPointerEnter(void* data, wl_pointer* pointer, std::uint32_t serial, wl_surface* surface,
                               wl_fixed_t x, wl_fixed_t y) {
    wl_pointer_set_cursor(pointer, serial, nullptr, 0, 0);
    if (surface != nullptr) {  // null where it was destroyed meanwhile
      const auto* const entered = static_cast<SaverSurface*>(wl_surface_get_user_data(surface));
      seatOf(data).m_pointerOn = entered->place();
      // It may have been put there since its output has gone. Who moves it over from one output to another
      // moves it on there.
      seatOf(data).postPointer(x, y, pointerWasPut);
    }
  }
  static void hearPointerMotion(void* data, wl_pointer*, std::uint32_t, wl_fixed_t x, wl_fixed_t y) {
    seatOf(data).postPointer(x, y, 0);
  }
  static void hearButton(void* data, wl_pointer*, std::uint32_t, std::uint32_t, std::uint32_t,
                         std::uint32_t state) {
    if (state == WL_POINTER_BUTTON_STATE_PRESSED) {
      seatOf(data).m_pump.post(WM_LBUTTONDOWN);
    }
  }
  static void hearAxis(void* data, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {
    seatOf(data).m_pump.post(WM_MOUSEWHEEL);
  }

  static void hearKeymap(void* data, wl_keyboard*, std::uint32_t format, int file, std::uint32_t size) {
    FileDescriptor descriptor(file);
    if (format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1) {
      seatOf(data).m_keys.setLayout(std::move(descriptor), size);
    }
  }
  static void hearKey(void* data, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t key,
                      std::uint32_t state) {
    WaylandSeat& seat = seatOf(data);
    if (state == WL_KEYBOARD_KEY_STATE_PRESSED) {
      seat.m_pump.post(WM_KEYDOWN, seat.m_pump.kind() == WindowKind::ordinary ? seat.m_keys.nameOf(key) : 0);
    }
  }

  static void hearTouch(void* data, wl_touch*, std::uint32_t, std::uint32_t, wl_surface*, std::int32_t,
                        wl_fixed_t, wl_fixed_t) {
    seatOf(data).m_pump.post(WM_LBUTTONDOWN);
  }

  // Members that newer libraries know stay null: their events come to newer objects only.
  static wl_seat_listener ofSeat() {
    wl_seat_listener listener{};
    listener.capabilities = hearCapabilities;
    listener.name = [](void*, wl_seat*, const char*) {};
    return listener;
  }
  static wl_pointer_listener ofPointer() {
    wl_pointer_listener listener{};
    listener.enter = hearPointerEnter;
    listener.leave = [](void*, wl_pointer*, std::uint32_t, wl_surface*) {};
    listener.motion = hearPointerMotion;
    listener.button = hearButton;
    listener.axis = hearAxis;
    return listener;
  }
  // That the keyboard leaves ends nothing: it may come back.
  static wl_keyboard_listener ofKeyboard() {
    wl_keyboard_listener listener{};
    listener.keymap = hearKeymap;
    listener.enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {};
    listener.leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {};
    listener.key = hearKey;
    listener.modifiers = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
                            std::uint32_t) {};
    return listener;
  }
  static wl_touch_listener ofTouch() {
    wl_touch_listener listener{};
    listener.down = hearTouch;
    listener.up = [](void*, wl_touch*, std::uint32_t, std::uint32_t, std::int32_t) {};
    listener.motion = [](void*, wl_touch*, std::uint32_t, std::int32_t, wl_fixed_t, wl_fixed_t) {};
    listener.frame = [](void*, wl_touch*) {};
    listener.cancel = [](void*, wl_touch*) {};
    return listener;
  }
};

WaylandSeat::WaylandSeat(Proxy<wl_seat> seat, MessagePump& pump) : m_pump(pump), m_seat(std::move(seat)) {
  static const wl_seat_listener listener = WaylandSeatListeners::ofSeat();
  wl_seat_add_listener(m_seat.get(), &listener, this);
}

void WaylandSeat::takeDevices(std::uint32_t capabilities) {
  const bool isFullRun = m_pump.kind() == WindowKind::fullRun;
  const auto takeOrDrop = [&](std::uint32_t capability, auto& device, auto take) {
    if ((capabilities & capability) == 0) {
      device.reset();
    } else if (!device) {
      (this->*take)();
    }
  };
  takeOrDrop(WL_SEAT_CAPABILITY_KEYBOARD, m_keyboard, &WaylandSeat::takeKeyboard);
  if (isFullRun) {
    takeOrDrop(WL_SEAT_CAPABILITY_POINTER, m_pointer, &WaylandSeat::takePointer);
    takeOrDrop(WL_SEAT_CAPABILITY_TOUCH, m_touch, &WaylandSeat::takeTouch);
  }
}

void WaylandSeat::takePointer() {
  static const wl_pointer_listener listener = WaylandSeatListeners::ofPointer();
  m_pointer.reset(wl_seat_get_pointer(m_seat.get()));
  wl_pointer_add_listener(m_pointer.get(), &listener, this);
}

void WaylandSeat::takeKeyboard() {
  static const wl_keyboard_listener listener = WaylandSeatListeners::ofKeyboard();
  m_keyboard.reset(wl_seat_get_keyboard(m_seat.get()));
  wl_keyboard_add_listener(m_keyboard.get(), &listener, this);
}

void WaylandSeat::takeTouch() {
  static const wl_touch_listener listener = WaylandSeatListeners::ofTouch();
  m_touch.reset(wl_seat_get_touch(m_seat.get()));
  wl_touch_add_listener(m_touch.get(), &listener, this);
}

void WaylandSeat::postPointer(wl_fixed_t x, wl_fixed_t y, WPARAM how) {
  const int pictureX = m_pointerOn.pictureX(wl_fixed_to_double(x));
  const int pictureY = m_pointerOn.pictureY(wl_fixed_to_double(y));
  m_pump.post(WM_MOUSEMOVE, how, static_cast<LPARAM>((pictureX & 0xFFFF) | (pictureY & 0xFFFF) << 16));
}
