// Types lines and lets them take turns.
#include "moon/rotatingLines.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

// A sum that stays at the ends of its range: a clock that jumps must not turn a wait into weeks.
int saturatedSum(int a, int b) {
  const std::int64_t sum = std::int64_t{a} + b;
  return static_cast<int>(
      std::clamp<std::int64_t>(sum, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace

void RotatingLines::addLine(const std::string& line) {
  if (m_lines.empty()) {
    m_target = line;
    m_typing = true;
  }
  m_lines.push_back(line);
  m_target.reserve(longest());
  m_shown.reserve(longest());
}

// Deliberate: the new line overwrites the old one in place, and the end of a longer old one stands until the
// typing is done, then vanishes at once: the label rewrites itself as on a terminal. Do not clear it first.
void RotatingLines::typeOneCharacter() {
  if (m_typePosition >= m_target.size()) {
    m_shown = m_target;
    m_typing = false;
    m_typePosition = 0;
    return;
  }
  m_typing = true;
  const char character = m_target[m_typePosition];
  if (m_typePosition >= m_shown.size()) {
    m_shown.push_back(character);
  } else {
    m_shown[m_typePosition] = character;
  }
  ++m_typePosition;
}

void RotatingLines::advance(int milliseconds) {
  m_timer = saturatedSum(m_timer, milliseconds);
  if (m_timer <= m_interval) {
    return;
  }
  m_timer = 0;
  const std::size_t previous = m_index;
  if (++m_index >= m_lines.size()) {
    m_index = 0;
  }
  if (m_index != previous && !m_lines.empty()) {
    m_target = m_lines[m_index];
    m_typing = true;
  }
}

std::size_t RotatingLines::longest() const {
  std::size_t size = 0;
  for (const std::string& line : m_lines) {
    size = std::max(size, line.size());
  }
  return size;
}
