// The script commands of the person whose devices connect to the phone.
#include <string>
#include <vector>

#include "simulator/radios/Radios.h"
#include "simulator/script/Command.h"

namespace sim {
namespace {

std::vector<std::string> takeNames(Arguments& words) {
  std::vector<std::string> names;
  if (!words.takeKeyword("none")) {
    do names.push_back(words.text("the name of a device, or none"));
    while (!words.atEnd());
  }
  words.finish();
  return names;
}

std::string shown(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : " ") + sim::quoted(name);
  return text.empty() ? "none" : text;
}

void bluetooth(Arguments& words) {
  Radios::current().connect(takeNames(words));
}

void expectBluetooth(Arguments& words) {
  const auto expected = takeNames(words);
  std::vector<std::string> found;
  for (const auto& peer : Radios::current().peers()) found.push_back(peer.name);
  if (found != expected)
    throw ScriptError(0,
                      "connected devices: expected " + shown(expected) + ", found " + shown(found));
}

void pairedWatch(Arguments& words) {
  const bool has = words.yesOrNo("whether a watch is paired");
  words.finish();
  Radios::current().setHasPairedWatch(has);
}

void expectAirplaneMode(Arguments& words) {
  const bool expected = words.yesOrNo("whether airplane mode is on");
  words.finish();
  const bool found = Radios::current().isAirplaneModeOn();
  if (found != expected)
    throw ScriptError(
        0, "airplane mode: expected " + notation(expected) + ", found " + notation(found));
}

}  // namespace

void addRadiosCommands(CommandTable& table) {
  Radios::current();  // exists before a restart's saved state is given back to it
  table.add({"bluetooth", Stage::any, "bluetooth NAME...|none",
             "bluetooth \"Pillow Speaker\" \"Headset\"",
             "Bluetooth is on, and connected to these devices alone.", bluetooth});
  table.add(
      {"paired-watch", Stage::any, "paired-watch YES|NO", "paired-watch YES",
       "Whether there is a watch that takes airplane mode over. It is out of reach: the host's "
       "main thread waits 5 seconds for it whenever airplane mode is set.",
       pairedWatch});
  table.add({"expect-bluetooth", Stage::any, "expect-bluetooth NAME...|none",
             "expect-bluetooth \"Headset\"",
             "The names of the connected devices, in the order of connection.", expectBluetooth});
  table.add({"expect-airplane-mode", Stage::any, "expect-airplane-mode YES|NO",
             "expect-airplane-mode NO", "Whether airplane mode is on.", expectAirplaneMode});
}

}  // namespace sim
