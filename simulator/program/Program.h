// The program behind dozewell-simulator's command line.
#pragma once

#include <string>
#include <vector>

namespace sim {

// The words after the program's name. 0: all is well; 1: a script failed; 2: wrong usage.
int runProgram(const std::vector<std::string>& words);

}  // namespace sim
