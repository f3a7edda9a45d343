// The parts of a surface that a frame changes, few and small enough to be named one by one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "graphics/linux/edges.h"

// Each part is a message, and work for the compositor however small it is. Parts that lie near each other are
// joined where few pixels come in between.
class ChangedParts {
 public:
  // More are counted as one, the whole: naming each costs more than it saves.
  static constexpr std::size_t most = 1024;

  // Size of the surface in pixels, above 0. No part at first.
  ChangedParts(int width, int height);

  // Not empty, and within the surface. Parts that come in rows from the top are joined best.
  void add(const xplEdges& part);
  void setWhole();
  void clear();

  bool isEmpty() const { return m_parts.empty(); }
  // They may overlap. Valid until the next change.
  std::span<const xplEdges> parts() const { return m_parts; }

 private:
  std::size_t nearestTo(const xplEdges& part) const;

  int m_width;
  int m_height;
  std::vector<xplEdges> m_parts;
  std::vector<std::uint16_t> m_lastIn;  // for each column of the surface: its last part, and 1; 0 for none
};
