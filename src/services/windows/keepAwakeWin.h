// Keeps the computer awake with SetThreadExecutionState.
#pragma once

#include "services/keepAwake.h"
#include "support/windows/shellHeaders.h"

class KeepAwakeWin : public xpliKeepAwake {
 public:
  using SetStateFunction = EXECUTION_STATE WINAPI(EXECUTION_STATE state);

  // setState: SetThreadExecutionState, or what stands in for it in tests.
  explicit KeepAwakeWin(SetStateFunction* setState) : m_setState(setState) {}

  bool request() override;
  // There is nothing to give back.
  void release() override {}

 private:
  SetStateFunction* m_setState;
};
