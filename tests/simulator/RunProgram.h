// Runs dozewell-simulator as a user does.
#pragma once

#include <string>

namespace sim {

struct Outcome {
  int status;  // -1: killed by a signal
  std::string output;
  std::string errors;  // a script of play() is named SCRIPT in them
};

Outcome runSimulator(const std::string& shellWords);

// Plays a script with the sample extension, quietly.
Outcome play(const std::string& script, const std::string& options = "--quiet");

std::string firstLine(const std::string& text);

// In the folder of this test; the process of each test case has its own.
std::string writeFile(const std::string& name, const std::string& text);

}  // namespace sim
