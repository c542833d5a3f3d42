// The script command of the person who presses a module of Control Center.
#include <string>

#include "objc/Message.h"
#include "simulator/controlcenter/ControlCenter.h"
#include "simulator/phone/Phone.h"
#include "simulator/phone/script/Command.h"

namespace sim {
namespace {

void module(Arguments& words) {
  const bool expands = words.takeKeyword("expand");
  if (!expands && !words.takeKeyword("collapse")) words.failHere("expected expand or collapse");
  const std::string identifier =
      words.atEnd() ? std::string(nowPlayingModule) : words.text("the identifier of a module");
  words.finish();
  Phone::current().journal.record(std::string("user module ") +
                                  (expands ? "expand " : "collapse ") + sim::quoted(identifier));
  objc::send<void, "setExpanded:">(moduleContainer(identifier), expands);
}

}  // namespace

void addControlCenterCommands(CommandTable& table) {
  table.add({"module", Stage::running, "module expand|collapse [IDENTIFIER]", "module expand",
             "The user expands or collapses a module of Control Center: that of the music, or the "
             "one named.",
             module});
}

}  // namespace sim
