#include "simulator/phone/script/NameChecks.h"

#include <utility>

#include "simulator/phone/script/Script.h"

namespace sim {

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

}  // namespace sim
