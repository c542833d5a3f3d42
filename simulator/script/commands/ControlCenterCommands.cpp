// The script commands of the person who opens Control Center and presses a module, and the
// variables for what is there.
#include <string>

#include "objc/Message.h"
#include "simulator/controlcenter/ControlCenter.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/Command.h"
#include "simulator/script/values/PhoneVariables.h"
#include "simulator/standin/Versions.h"

namespace sim {
namespace {

using objc::Object;

void controlCenter(Arguments& words) {
  const bool opens = words.takeEither("open", "close");
  words.finish();
  Phone::current().journal.record(opens ? "user control-center open" : "user control-center close");
  if (opens)
    openControlCenter();
  else
    closeControlCenter();
}

void module(Arguments& words) {
  const bool expands = words.takeEither("expand", "collapse");
  const std::string identifier =
      words.atEnd() ? std::string(nowPlayingModule) : words.text("the identifier of a module");
  words.finish();
  Phone::current().journal.record(std::string("user module ") +
                                  (expands ? "expand " : "collapse ") + sim::quoted(identifier));
  objc::send<void, "setExpanded:">(moduleContainer(identifier), expands);
}

Object player() {
  const auto content = objc::send<Object, "contentViewController">(
      objc::send<Object, "mediaContainer">(openedControlCenter()));
  return objc::send<Object, "nowPlayingViewController">(content);
}

Object header() {
  return objc::send<Object, "headerView">(objc::send<Object, "view">(player()));
}

Object embedding() {
  const Object view = objc::send<Object, "view">(player());
  return systemMajor() >= 16 ? objc::send<Object, "containerView">(view)
                             : objc::send<Object, "collapsedEmbeddingView">(view);
}

}  // namespace

void addControlCenterCommands(CommandTable& table) {
  table.add({"module", Stage::running, "module expand|collapse [IDENTIFIER]", "module expand",
             "The user expands or collapses a module of Control Center: that of the music, or the "
             "one named.",
             module});
  table.add({"control-center", Stage::running, "control-center open|close", "control-center open",
             "The user opens or closes Control Center. While it is open, $controlCenter, "
             "$nowPlaying, $header and $embedding are its controller, that of its music module, "
             "that module's header and the view below the header.",
             controlCenter});
  addPhoneVariable("controlCenter", openedControlCenter);
  addPhoneVariable("nowPlaying", player);
  addPhoneVariable("header", header);
  addPhoneVariable("embedding", embedding);
}

}  // namespace sim
