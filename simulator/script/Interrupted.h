// A command that somebody has ended in its middle.
#pragma once

#include <string>
#include <vector>

#include "simulator/machine/Clock.h"
#include "simulator/machine/Journal.h"
#include "simulator/script/words/Script.h"

namespace sim {

class Interrupted : public ScriptParseError {
 public:
  Interrupted(std::size_t lineNumber, Nanoseconds uptime)
      : ScriptParseError(lineNumber, {1, "interrupted at " + notation(seconds(uptime)) + " s"}),
        lines{"advance-to " + secondsText(uptime)} {}

  // As many lines of a script as do what has been done of it.
  std::vector<std::string> lines;
};

}  // namespace sim
