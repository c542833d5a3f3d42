#include "simulator/script/names/NameChecks.h"

#include <utility>

#include "simulator/machine/NearestName.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/words/Script.h"

namespace sim {

PhoneNameChecks& nameChecks() {
  return Phone::current().state<PhoneNameChecks>();
}

void NameChecks::add(Check check) {
  if (known_)
    check();
  else
    waiting_.push_back({line_, std::move(check)});
}

void NameChecks::namesAreKnown() {
  known_ = true;
  for (const Waiting& each : std::exchange(waiting_, {})) {
    try {
      each.check();
    } catch (const ScriptError& error) {
      throw ScriptParseError(each.line, error);
    }
  }
}

void requireNoTypo(const std::string& what, const Word& name, Names known) {
  if (isNamedByExtension(name.text)) return;
  const Names others = extensionNames();
  known.insert(known.end(), others.begin(), others.end());
  if (const std::string meant = typoSuggestion(name.text, known); !meant.empty())
    throw ScriptError(name.column, what + ' ' + name.text + " is known nowhere" + meant);
}

}  // namespace sim
