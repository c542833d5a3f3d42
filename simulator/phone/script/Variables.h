// The $variables of a script.
#pragma once

#include <map>
#include <set>
#include <string>

#include "simulator/phone/script/Value.h"

namespace sim {

class Variables {
 public:
  void keep(const std::string& name, Value value);
  // What the script has kept under the name, or else the phone's variable. Throws ScriptError at
  // the column, saying so, when the variable's object died with its host or is not on the screen.
  Value value(const std::string& name, std::size_t column) const;

  // Names of before a restart, whose objects are gone.
  std::set<std::string> names() const;
  void restoreLost(std::set<std::string> names) { lost_ = std::move(names); }

 private:
  std::map<std::string, Value> values_;
  std::set<std::string> lost_;
};

}  // namespace sim
