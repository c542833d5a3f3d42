// What was done to the phone since it was made, and when.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/machine/Clock.h"

namespace sim {

class Recording {
 public:
  // The line takes effect at this uptime. It counts only if done() follows.
  void begin(std::string line, Nanoseconds uptime);
  void done(Nanoseconds uptime);
  // It was refused, or is nothing that a script should repeat.
  void forget() { open_.reset(); }

  // What has been played, as lines of a script, time's passing left out.
  std::vector<std::string> lines() const;
  // A phone script that repeats it all, up to this uptime.
  std::string asScript(Nanoseconds uptime) const;

  // A line that has begun is saved as done: the process ends in its middle when it is `respring`.
  nlohmann::json save() const;
  void restore(const nlohmann::json& saved);

 private:
  struct Step {
    std::string line;
    Nanoseconds begun = 0, ended = 0;  // uptimes
  };

  std::vector<Step> steps_;
  std::optional<Step> open_;
};

// "61", "61.25": exact, as few digits as will do.
std::string secondsText(Nanoseconds duration);

}  // namespace sim
