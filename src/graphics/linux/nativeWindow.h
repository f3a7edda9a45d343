// What the graphics layer needs of a window on Linux, whatever shows it: X11, a file, or a test.
//
// Whoever writes the next one supplies: a rectangle that stays, memory that the window can show, a copy of
// what it shows now, and present(). Calls come from one thread. None of them throws; a window whose display
// has gone does nothing.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "graphics/linux/pixelMemory.h"
#include "graphics/linux/surface.h"

class xpliNativeWindow {
 public:
  virtual ~xpliNativeWindow() = default;

  // A number that tells the window from others in the log: the X11 window id, 0 where there is none.
  virtual std::uintptr_t id() const = 0;
  // In screen coordinates (pixels).
  virtual xplEdges rectangle() const = 0;
  // The monitors of the whole virtual screen, in screen coordinates, the main one first; empty where it
  // fails.
  virtual std::vector<xplEdges> monitors() const = 0;
  // Memory of the given size that present() can show; the caller owns it, and drops it before the window
  // goes.
  virtual std::unique_ptr<PixelMemory> makePixelMemory(int width, int height) = 0;
  // Copies what the window shows now into memory of the window's own size.
  virtual void copyContent(PixelMemory& memory) = 0;
  // Shows these parts of the memory (which came from makePixelMemory) at the same places of the window. The
  // display may go on reading the memory until waitUntilShown() returns: whoever writes into it waits first.
  virtual void present(PixelMemory& memory, std::span<const xplEdges> parts) = 0;
  // True once after the window has lost what was presented to it (it was covered, say): all of it is needed
  // again.
  virtual bool takeContentLost() { return false; }
  virtual void waitUntilShown() = 0;
  // Dots per inch for text, at least 1.
  virtual int dotsPerInch() const = 0;
};
