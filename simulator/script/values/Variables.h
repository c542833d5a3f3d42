// The $variables of a script.
#pragma once

#include <map>
#include <string>

#include "simulator/foundation/invocation/Value.h"
#include "simulator/script/values/SavedValue.h"

namespace sim {

// What of them the next host process gets.
struct SavedVariables {
  std::map<std::string, SavedValue> kept;
  std::map<std::string, std::string> lost;  // by name: "in the respring at line 4"
};

class Variables {
 public:
  // Of a C string a copy, which lasts.
  void keep(const std::string& name, Value value);
  // What the script has kept under the name, or else the phone's variable. Throws ScriptError at
  // the column, saying so, when the variable's object died with its host or is not on the screen.
  Value value(const std::string& name, std::size_t column) const;

  // As the host's process ends: plain values stay, all else is lost, and `how` says where.
  SavedVariables saved(const std::string& how) const;
  void restore(const SavedVariables& from);

 private:
  std::map<std::string, Value> values_;
  std::map<std::string, std::string> lost_;
};

}  // namespace sim
