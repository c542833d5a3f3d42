// A command that was ended in its middle, by somebody or for want of room: another play of it would
// not end there.
#pragma once

#include <string>
#include <vector>

#include "simulator/machine/Clock.h"
#include "simulator/machine/Journal.h"
#include "simulator/script/words/Script.h"

namespace sim {

class Interrupted : public ScriptParseError {
 public:
  Interrupted(std::size_t lineNumber, Nanoseconds uptime, const std::string& why)
      : ScriptParseError(lineNumber, {1, why}), lines{"advance-to " + secondsText(uptime)} {}

  // As many lines of a script as do what has been done of it.
  std::vector<std::string> lines;
};

}  // namespace sim
