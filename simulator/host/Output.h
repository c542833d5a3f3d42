// What the program prints.
#pragma once

namespace sim {

inline constexpr const char* outputLost = "not all could be written to standard output";

// Whether all that was printed so far could be written: not to a full disk, for example.
bool isAllPrinted();

}  // namespace sim
