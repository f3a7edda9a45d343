// Implements the reading of keyboard layouts.
#include "host/linux/wayland/waylandKeys.h"

#include <utility>

#include <sys/mman.h>
#include <xkbcommon/xkbcommon.h>

#include "host/linux/keys.h"

namespace {

// Layouts count keys from eight on, as X11 does.
constexpr std::uint32_t firstKeyOfLayouts = 8;

struct FreeContext {
  void operator()(xkb_context* context) const { xkb_context_unref(context); }
};

WPARAM nameOfSymbol(xkb_keysym_t symbol) {
  switch (symbol) {
    case XKB_KEY_Escape:
      return keyEscape;
    case XKB_KEY_q:
    case XKB_KEY_Q:
      return keyQ;
    default:
      return 0;
  }
}

WPARAM nameOfPlace(std::uint32_t key) {
  constexpr std::uint32_t placeOfEscape = 1;
  constexpr std::uint32_t placeOfQ = 16;
  return key == placeOfEscape ? keyEscape : key == placeOfQ ? keyQ : 0;
}

}  // namespace

void WaylandKeys::FreeKeymap::operator()(xkb_keymap* keymap) const {
  xkb_keymap_unref(keymap);
}

WaylandKeys::WaylandKeys() = default;
WaylandKeys::~WaylandKeys() = default;

void WaylandKeys::setLayout(FileDescriptor file, std::uint32_t size) {
  m_file = std::move(file);
  m_size = size;
  m_layout.reset();
}

void WaylandKeys::readLayout() {
  const FileDescriptor file = std::exchange(m_file, {});
  if (m_size == 0) {
    return;
  }
  void* const text = ::mmap(nullptr, m_size, PROT_READ, MAP_PRIVATE, file.get(), 0);
  if (text == MAP_FAILED) {
    return;
  }
  const std::unique_ptr<xkb_context, FreeContext> context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
  if (context) {
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);  // keys are then told by their places
    m_layout.reset(xkb_keymap_new_from_buffer(context.get(), static_cast<const char*>(text), m_size - 1,
                                              XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
  }
  ::munmap(text, m_size);
}

WPARAM WaylandKeys::nameOf(std::uint32_t key) {
  if (m_file.isOpen()) {
    readLayout();
  }
  if (!m_layout) {
    return nameOfPlace(key);
  }
  // What stands on the key without any modifier, in the first layout: as on X11.
  const xkb_keysym_t* symbols = nullptr;
  const int count = xkb_keymap_key_get_syms_by_level(m_layout.get(), key + firstKeyOfLayouts, 0, 0, &symbols);
  return count == 1 ? nameOfSymbol(symbols[0]) : 0;
}
