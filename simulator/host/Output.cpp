#include "simulator/host/Output.h"

#include <cstdio>
#include <iostream>

namespace sim {

bool isAllPrinted() {
  std::cout.flush();
  return std::cout && std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

}  // namespace sim
