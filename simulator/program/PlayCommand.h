// dozewell-simulator play
#pragma once

#include "simulator/program/Options.h"

namespace sim {

// Each script on a phone of its own, one after the other; 1 when one of them failed.
int playScripts(const Options& options);

}  // namespace sim
