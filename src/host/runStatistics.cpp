// Implements the counting of frames and their cost.
#include "host/runStatistics.h"

#include <algorithm>
#include <utility>

#include "support/log.h"

RunStatistics::RunStatistics(ProcessorTime processorTime)
    : m_processorTime(std::move(processorTime)), m_processorStart(m_processorTime()) {}

void RunStatistics::workEnds() {
  // A clock that was set back meanwhile takes nothing off.
  m_frameSeconds += std::max(m_work.seconds(), 0.0);
}

void RunStatistics::frameIsShown() {
  ++m_frames;
  m_sumSeconds += m_frameSeconds;
  m_worstSeconds = std::max(m_worstSeconds, m_frameSeconds);
  m_frameSeconds = 0.0;
}

std::vector<std::string> RunStatistics::lines() const {
  const double seconds = std::max(m_run.seconds(), 0.0);
  const double taken = m_processorTime() - m_processorStart;
  // A run of no length has no rates.
  const double perSecond = seconds > 0.0 ? 1.0 / seconds : 0.0;
  const auto frames = static_cast<double>(m_frames);
  constexpr double milliseconds = 1000.0;
  return {
      stringFormat("Frames: %ld in %.1f s, %.1f a second", m_frames, seconds, frames * perSecond),
      m_frames == 0 ? "A frame: none was drawn"
                    : stringFormat("A frame: %.2f ms on average, %.2f ms at worst",
                                   m_sumSeconds / frames * milliseconds, m_worstSeconds * milliseconds),
      stringFormat("Processor: %.2f s, %.2f %% of one core", taken, 100.0 * taken * perSecond),
  };
}

std::string RunStatistics::joined(const std::vector<std::string>& lines) {
  std::string all;
  for (const std::string& one : lines) {
    all += (all.empty() ? "" : ". ") + one;
  }
  return all;
}
