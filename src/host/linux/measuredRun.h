// Measures a run where the user asked for it, and tells what came out when it is over.
#pragma once

#include <optional>

#include "host/linux/messagePump.h"
#include "host/runStatistics.h"

// From its making to its end: however the run ends, its statistics go to standard output and into the log.
class MeasuredRun {
 public:
  // Measures nothing, and costs nothing, where it is not wanted. The pump is borrowed and must outlive it.
  MeasuredRun(bool isWanted, MessagePump& pump);
  ~MeasuredRun();
  MeasuredRun(const MeasuredRun&) = delete;
  MeasuredRun& operator=(const MeasuredRun&) = delete;

 private:
  MessagePump& m_pump;
  std::optional<RunStatistics> m_statistics;
};
