// Every command of the script language.
#pragma once

#include "simulator/phone/script/Command.h"

namespace sim {

CommandTable allCommands();

}  // namespace sim
