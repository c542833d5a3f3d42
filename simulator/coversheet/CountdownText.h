#pragma once

#include <string>

namespace sim {

// "1:05:09", or "5:09" for less than an hour, in the phone's digits; parts of seconds count as
// whole ones.
std::string countdownText(double secondsLeft);

}  // namespace sim
