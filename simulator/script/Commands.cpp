// The whole script language is this list.
#include "simulator/script/Commands.h"

#include "simulator/script/commands/PhoneCommands.h"

namespace sim {

void addPhoneCommands(CommandTable& table) {
  addSetupCommands(table);
  addHostCommands(table);
  addMessageCommands(table);
  addFunctionCommands(table);
  addExpectCommands(table);
  addJournalCommands(table);
  addReflectionCommands(table);
  addRepeatCommands(table);
  addLiveObjectCommands(table);
}

CommandTable allCommands() {
  CommandTable table;
  addPhoneCommands(table);
  addFoundationCommands(table);
  addPreferencesCommands(table);
  addPlayerCommands(table);
  addRadiosCommands(table);
  addShortcutCommands(table);
  addScreenCommands(table);
  addLockScreenCommands(table);
  addControlCenterCommands(table);
  addPreferencesAppCommands(table);
  addUIKitCommands(table);
  addDrawingCommands(table);
  return table;
}

}  // namespace sim
