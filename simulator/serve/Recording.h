// What was done to the phone since it was made, and when: as a phone script, which lies in a file.
#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "simulator/machine/Clock.h"
#include "simulator/machine/Journal.h"

namespace sim {

// A line of a script.
inline std::string advanceLine(Nanoseconds uptime) {
  return "advance-to " + secondsText(uptime);
}

// The main thread only.
class Recording {
 public:
  // Throws std::system_error.
  Recording();
  ~Recording();
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  // The line takes effect at this uptime. It counts only if done() follows, or doneBy() with the
  // lines that do as much.
  void begin(std::string line, Nanoseconds uptime);
  void done(Nanoseconds uptime);
  void doneBy(const std::vector<std::string>& lines, Nanoseconds uptime);
  // What was done up to this uptime is saved: the next host begins with it.
  void saved(Nanoseconds uptime);
  // The host has crashed at `uptime`: of the line that has begun, or by itself. The next one begins
  // with what was saved last; nothing after that outlives the crash but files and the clock.
  void crashed(Nanoseconds uptime);
  // It was refused, or is nothing that a script should repeat.
  void forget() { open_.reset(); }

  // What has been played up to `boot`, time's passing left out.
  const std::vector<std::string>& setup() const { return setup_; }
  // A phone script that repeats it all, up to this uptime.
  std::string asScript(Nanoseconds uptime) const;

 private:
  struct Step {
    std::string line;
    Nanoseconds begun;  // uptime
  };
  void write(const std::string& line);
  void writeUnsaved();

  std::FILE* file_;
  std::vector<std::string> unsaved_;  // lines that are not in the file yet
  Nanoseconds saved_ = 0;             // uptime
  Nanoseconds reachedByFile_ = 0;     // uptime
  std::vector<std::string> setup_;
  std::optional<Step> open_;
  Nanoseconds reached_ = 0;  // uptime
};

}  // namespace sim
