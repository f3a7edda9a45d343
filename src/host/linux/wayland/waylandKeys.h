// Tells the keys that end a run in an ordinary window, in the user's own layout.
#pragma once

#include <cstdint>
#include <memory>

#include "host/linux/fileDescriptor.h"
#include "host/platform.h"

struct xkb_keymap;

class WaylandKeys {
 public:
  WaylandKeys();
  ~WaylandKeys();
  WaylandKeys(const WaylandKeys&) = delete;
  WaylandKeys& operator=(const WaylandKeys&) = delete;

  // The layout as the compositor gives it: a text of so many bytes, its end included. Read with the first
  // key.
  void setLayout(FileDescriptor file, std::uint32_t size);
  // The key of this number (as the kernel counts) as WM_KEYDOWN names it: keyEscape, keyQ or 0. Without a
  // layout that can be read it is taken for that of a keyboard with a q right of the tabulator.
  WPARAM nameOf(std::uint32_t key);

 private:
  struct FreeKeymap {
    void operator()(xkb_keymap* keymap) const;
  };

  void readLayout();

  FileDescriptor m_file;
  std::uint32_t m_size = 0;
  std::unique_ptr<xkb_keymap, FreeKeymap> m_layout;
};
