// A native window that nobody sees: it keeps what it was told to show, for the renderer and for tests.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "graphics/linux/nativeWindow.h"

class MemoryWindow : public xpliNativeWindow {
 public:
  // rectangle: in screen coordinates; monitors: as monitors() gives them. Starts black.
  MemoryWindow(const xplEdges& rectangle, std::vector<xplEdges> monitors);

  std::uintptr_t id() const override { return 0; }
  xplEdges rectangle() const override { return m_rectangle; }
  std::vector<xplEdges> monitors() const override { return m_monitors; }
  std::unique_ptr<PixelMemory> makePixelMemory(int width, int height) override;
  void copyContent(PixelMemory& memory) override;
  void present(PixelMemory& memory, std::span<const xplEdges> parts) override;
  void waitUntilShown() override {}
  int dotsPerInch() const override { return 96; }

  // What a viewer would see now.
  const Surface& shown() const { return m_shown; }
  Surface& shown() { return m_shown; }

 private:
  xplEdges m_rectangle;
  std::vector<xplEdges> m_monitors;
  Surface m_shown;
};
