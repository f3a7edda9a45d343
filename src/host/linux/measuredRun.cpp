// Implements the telling of a run's statistics.
#include "host/linux/measuredRun.h"

#include <iostream>

#include "host/linux/processorTime.h"
#include "support/log.h"

MeasuredRun::MeasuredRun(bool isWanted, MessagePump& pump) : m_pump(pump) {
  if (isWanted) {
    m_statistics.emplace(processorSeconds);
    m_pump.measureWith(&*m_statistics);
  }
}

MeasuredRun::~MeasuredRun() {
  if (!m_statistics) {
    return;
  }
  m_pump.measureWith(nullptr);
  const auto lines = m_statistics->lines();
  logInfo().add(RunStatistics::joined(lines));
  for (const std::string& line : lines) {
    std::cout << line << "\n";
  }
  std::cout << std::flush;
}
