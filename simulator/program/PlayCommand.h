// dozewell-simulator play
#pragma once

#include "simulator/program/Options.h"

namespace sim {

// Each script in a process of its own, one after the other; 1 when one of them failed.
int playScripts(const Options& options);

// Goes on with a script whose host has been restarted.
int resumeScript(const std::filesystem::path& stateFile);

}  // namespace sim
