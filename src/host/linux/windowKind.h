// The kinds of windows that the saver runs in.
#pragma once

enum class WindowKind {
  fullRun,  // our own, over the whole screen; any input ends the run
  foreign,  // another program's; input ends nothing
  ordinary  // our own, under the window manager; Escape, q and its close button end the run
};
