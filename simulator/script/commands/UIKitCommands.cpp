#include "simulator/script/commands/UIKitCommands.h"

namespace sim {

void addUIKitCommands(CommandTable& table) {
  addTouchCommands(table);
  addFingerCommands(table);
  addAlertCommands(table);
  addScreenViewCommands(table);
}

}  // namespace sim
