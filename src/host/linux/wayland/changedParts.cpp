// Implements the collecting and joining of changed parts.
#include "host/linux/wayland/changedParts.h"

#include <algorithm>

namespace {

constexpr int columnWidth = 32;      // pixels
constexpr std::int64_t worth = 400;  // pixels: so many may come in between for one part less

std::int64_t areaOf(const xplEdges& part) {
  return std::int64_t{part.right - part.left} * (part.bottom - part.top);
}

xplEdges around(const xplEdges& one, const xplEdges& other) {
  return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
          std::max(one.bottom, other.bottom)};
}

}  // namespace

ChangedParts::ChangedParts(int width, int height)
    : m_width(width),
      m_height(height),
      m_lastIn(static_cast<std::size_t>((width - 1) / columnWidth) + 1, std::uint16_t{0}) {
  m_parts.reserve(most);
}

// The part that costs least to be joined to; most where that is more than it saves.
std::size_t ChangedParts::nearestTo(const xplEdges& part) const {
  std::size_t nearest = most;
  std::int64_t least = worth;
  const auto first = static_cast<std::size_t>(std::max(part.left / columnWidth - 1, 0));
  const auto last =
      std::min(static_cast<std::size_t>((part.right - 1) / columnWidth + 1), m_lastIn.size() - 1);
  for (std::size_t column = first; column <= last; ++column) {
    if (m_lastIn[column] != 0) {
      const std::size_t candidate = m_lastIn[column] - std::size_t{1};
      const std::int64_t added =
          areaOf(around(m_parts[candidate], part)) - areaOf(m_parts[candidate]) - areaOf(part);
      if (added < least) {
        least = added;
        nearest = candidate;
      }
    }
  }
  return nearest;
}

void ChangedParts::add(const xplEdges& part) {
  std::size_t place = nearestTo(part);
  if (place != most) {
    m_parts[place] = around(m_parts[place], part);
  } else if (m_parts.size() < most) {
    place = m_parts.size();
    m_parts.push_back(part);
  } else {
    setWhole();
    return;
  }
  for (int column = part.left / columnWidth; column <= (part.right - 1) / columnWidth; ++column) {
    m_lastIn[static_cast<std::size_t>(column)] = static_cast<std::uint16_t>(place + 1);
  }
}

void ChangedParts::setWhole() {
  m_parts.assign(1, {0, 0, m_width, m_height});
  std::fill(m_lastIn.begin(), m_lastIn.end(), std::uint16_t{1});
}

void ChangedParts::clear() {
  m_parts.clear();
  std::fill(m_lastIn.begin(), m_lastIn.end(), std::uint16_t{0});
}
