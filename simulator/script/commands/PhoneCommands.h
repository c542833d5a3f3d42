// The parts of addPhoneCommands, one for each subject.
#pragma once

#include "simulator/script/Command.h"

namespace sim {

void addSetupCommands(CommandTable& table);       // ios, locale, process, missing, file
void addHostCommands(CommandTable& table);        // boot, advance, kill, respring …
void addMessageCommands(CommandTable& table);     // send, get, let, background
void addFunctionCommands(CommandTable& table);    // call, declare, expect-variable
void addExpectCommands(CommandTable& table);      // expect, expect-not, expect-last
void addJournalCommands(CommandTable& table);     // expect-journal …
void addReflectionCommands(CommandTable& table);  // expect-class, expect-type …
void addRepeatCommands(CommandTable& table);      // repeat
void addLiveObjectCommands(CommandTable& table);  // expect-live, mark-objects …

}  // namespace sim
