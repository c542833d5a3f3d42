// The parts of addUIKitCommands, one for each subject.
#pragma once

#include "simulator/script/Command.h"

namespace sim {

void addTouchCommands(CommandTable& table);       // tap, select, pick
void addFingerCommands(CommandTable& table);      // touch
void addAlertCommands(CommandTable& table);       // press-alert, expect-alert
void addScreenViewCommands(CommandTable& table);  // tree, rotate

}  // namespace sim
