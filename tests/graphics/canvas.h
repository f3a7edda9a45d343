// A picture to draw on in tests, and a hash over all its pixels.
#pragma once

#include <cstdint>
#include <string>

#include "graphics/window.h"
#include "windowharness/testWindow.h"

// A window of its own, filled with white; drawing goes to its back buffer.
class Canvas {
 public:
  explicit Canvas(int width, int height) : m_native(width, height), m_window(m_native.handle()) { clear(); }
  void clear() {
    m_window.fillRect(xplRect<int>(0, 0, m_window.getWidth(), m_window.getHeight()), {255, 255, 255});
  }
  xplWindow& window() { return m_window; }
  TestWindow& native() { return m_native; }

  // FNV-1a over the red, green and blue bytes of all pixels, row by row.
  std::uint64_t hash() {
    std::uint64_t value = 0xcbf29ce484222325U;
    for (int y = 0; y < m_window.getHeight(); ++y) {
      for (int x = 0; x < m_window.getWidth(); ++x) {
        const xplColor color = m_window.getPixel(x, y);
        for (const auto channel : {color.red(), color.green(), color.blue()}) {
          value = (value ^ channel) * 0x100000001b3U;
        }
      }
    }
    return value;
  }

  // One character a pixel: '.' white, '#' black, 'r' any other; rows end with '\n'.
  std::string picture() {
    std::string text;
    for (int y = 0; y < m_window.getHeight(); ++y) {
      for (int x = 0; x < m_window.getWidth(); ++x) {
        const xplColor color = m_window.getPixel(x, y);
        text += color == xplColor(255, 255, 255) ? '.' : color == xplColor(0, 0, 0) ? '#' : 'r';
      }
      text += '\n';
    }
    return text;
  }

 private:
  TestWindow m_native;
  xplWindow m_window;
};
