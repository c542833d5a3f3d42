#include "simulator/phone/script/Variables.h"

#include <utility>

#include "simulator/phone/script/Command.h"
#include "simulator/phone/script/PhoneVariables.h"

namespace sim {

void Variables::keep(const std::string& name, Value value) {
  lost_.erase(name);
  values_.insert_or_assign(name, std::move(value));
}

Value Variables::value(const std::string& name, std::size_t column) const {
  if (const auto found = values_.find(name); found != values_.end()) return found->second;
  if (const objc::Object current = phoneVariable(name)) return Value::ofObject(current);
  if (isPhoneVariable(name)) throw ScriptError(column, "there is no $" + name + " just now");
  if (lost_.contains(name))
    throw ScriptError(column, "$" + name + " was an object of a host process that has ended");
  throw ScriptError(column, "there is no variable $" + name);
}

std::set<std::string> Variables::names() const {
  std::set<std::string> all = lost_;
  for (const auto& [name, value] : values_) all.insert(name);
  return all;
}

}  // namespace sim
