// Every command of the script language.
#pragma once

#include "simulator/script/Command.h"

namespace sim {

// There must be a phone: some commands keep what outlives a restart in it.
CommandTable allCommands();

}  // namespace sim
