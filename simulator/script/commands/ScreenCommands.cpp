// The script command of the side button.
#include "simulator/machine/Phone.h"
#include "simulator/script/Command.h"
#include "simulator/springboard/SBBacklightController.h"

namespace sim {
namespace {

void screen(Arguments& words) {
  const bool on = words.takeEither("on", "off");
  words.finish();
  Phone::current().journal.record(on ? "user screen on" : "user screen off");
  SBBacklightController::setScreenIsOn(on);
}

}  // namespace

void addScreenCommands(CommandTable& table) {
  table.add({"screen", Stage::running, "screen on|off", "screen off",
             "The screen goes on or off; nothing is locked. A new host begins with a lit screen.",
             screen});
}

}  // namespace sim
