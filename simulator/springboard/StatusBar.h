// The line at the top of the screen: the time, the strength of the networks, the battery.
#pragma once

namespace sim {

// Once a process; it is never closed. Nothing on a phone that has no windows.
void showStatusBar();

// The lock screen has a clock of its own.
void setStatusBarShowsTime(bool shows);

}  // namespace sim
