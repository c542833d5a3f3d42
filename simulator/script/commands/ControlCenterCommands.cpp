// The script commands of the person who opens Control Center and presses a module, and the
// variables for what is there.
#include <string>
#include <utility>
#include <vector>

#include "objc/Message.h"
#include "simulator/controlcenter/ControlCenter.h"
#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/Endpoints.h"
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
  const Object container = moduleContainer(identifier);
  if (expands)
    objc::send<void, "expandModule">(container);
  else
    objc::send<void, "dismissExpandedModuleAnimated:">(container, true);
  Phone::current().queue.runDue();
}

void otherPlayers(Arguments& words) {
  std::vector<std::string> names;
  if (!words.takeKeyword("none")) {
    do names.push_back(words.text("the name of a device, or none"));
    while (!words.atEnd());
  }
  words.finish();
  Endpoints::current().find(std::move(names));
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
  Endpoints::current();  // exists before a restart's saved state is given back to it
  table.add({"module", Stage::running, "module expand|collapse [IDENTIFIER]", "module expand",
             "The user expands or collapses a module of Control Center: that of the music, or the "
             "one named.",
             module});
  table.add({"control-center", Stage::running, "control-center open|close", "control-center open",
             "The user opens or closes Control Center. While it is open, $controlCenter, "
             "$nowPlaying, $header and $embedding are its controller, that of its music module, "
             "that module's header and the view below the header.",
             controlCenter});
  table.add(
      {"other-players", Stage::any, "other-players NAME...|none", "other-players \"Kitchen\"",
       "These other devices nearby play by themselves. Before 16 Control Center's music module "
       "loads a player for each as it is found, and shows none of them.",
       otherPlayers});
  addPhoneVariable("controlCenter", openedControlCenter);
  addPhoneVariable("nowPlaying", player);
  addPhoneVariable("header", header);
  addPhoneVariable("embedding", embedding);
}

}  // namespace sim
