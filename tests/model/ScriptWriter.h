// A night as a phone script, with everything that the model expects of it.
#pragma once

#include <set>
#include <sstream>
#include <string>

#include "tests/model/NightModel.h"

namespace model {

// What each night begins with.
constexpr const char* beginning =
    "boot\n"
    "set volumeFadeOutTime 1\n"
    "playlist \"A\" 30 \"B\" 45.5 \"B\" 20 \"C\" 7\n";

class ScriptWriter {
 public:
  explicit ScriptWriter(const Rules& rules) : model_(rules) {}

  std::string write(const Night& night);

 private:
  void writeCommand(const Command& command);
  std::set<std::size_t> choose(const Command& command) const;
  void writeDeaths(const std::set<std::size_t>& deaths, const std::vector<Line>& lines);
  void expectLines(const std::vector<Line>& lines);
  void expectState();
  void expectStored();

  NightModel model_;
  std::ostringstream script_;
};

}  // namespace model
