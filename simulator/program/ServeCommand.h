// dozewell-simulator serve
#pragma once

#include "simulator/program/Options.h"

namespace sim {

// Watches over the process that serves the phone, until that ends.
int servePhone(const Options& options);

// The next process of a phone that is being served.
int goOnServing(const std::filesystem::path& stateFile);

}  // namespace sim
