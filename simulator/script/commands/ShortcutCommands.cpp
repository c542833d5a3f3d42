// The script command of the person who makes shortcuts.
#include <string>
#include <utility>
#include <vector>

#include "simulator/runwright/ShortcutRunner.h"
#include "simulator/script/Command.h"

namespace sim {
namespace {

void shortcuts(Arguments& words) {
  std::vector<std::string> names;
  while (!words.atEnd()) names.push_back(words.text("the name of a shortcut"));
  words.finish();
  ShortcutRunner& runner = ShortcutRunner::current();
  if (!runner.install())
    throw ScriptError(0, "no shortcut runner is installed: `shortcuts` comes before boot, too");
  runner.setShortcuts(std::move(names));
}

}  // namespace

void addShortcutCommands(CommandTable& table) {
  ShortcutRunner::current();  // exists before a restart's saved state is given back to it
  table.add({"shortcuts", Stage::any, "shortcuts [NAME]...", "shortcuts \"Dozewell End\"",
             "Before `boot`, installs the shortcut runner. The user's shortcuts are these.",
             shortcuts});
}

}  // namespace sim
