// dozewell-simulator serve
#pragma once

#include "simulator/program/Options.h"

namespace sim {

// Serves a phone until the program is told to end; gives its exit status.
int servePhone(const Options& options);

}  // namespace sim
