// Counts the frames of a run and what they cost, for whoever asks for it with --stats.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/timeCounter.h"

class RunStatistics {
 public:
  // The processor time that the process has taken so far, in seconds.
  using ProcessorTime = std::function<double()>;

  // The run begins now.
  explicit RunStatistics(ProcessorTime processorTime);

  // Work on the next frame begins, and ends: a step of the sky, or the drawing. What happens between an end
  // and the next beginning is waiting, and not counted. One does not begin within the other.
  void workBegins() { m_work.restart(); }
  void workEnds();
  // The work since the last frame has made this one.
  void frameIsShown();

  // The run so far, in three lines without line ends: frames, the time that one takes, the processor's share.
  std::vector<std::string> lines() const;
  // Such lines as one.
  static std::string joined(const std::vector<std::string>& lines);

 private:
  ProcessorTime m_processorTime;
  double m_processorStart;  // seconds
  xplTimeCounter m_run;
  xplTimeCounter m_work;
  double m_frameSeconds = 0.0;  // of the frame that is being made
  double m_sumSeconds = 0.0;    // of all frames shown
  double m_worstSeconds = 0.0;
  long m_frames = 0;
};
