#include "simulator/script/values/Variables.h"

#include <utility>

#include "simulator/script/Command.h"
#include "simulator/script/values/PhoneVariables.h"

namespace sim {

void Variables::keep(const std::string& name, Value value) {
  lost_.erase(name);
  if (const char* text = value.type().kind == '*' ? value.as<const char*>() : nullptr)
    value = Value::ofCString(text);
  values_.insert_or_assign(name, std::move(value));
}

Value Variables::value(const std::string& name, std::size_t column) const {
  if (const auto found = values_.find(name); found != values_.end()) return found->second;
  if (const objc::Object current = phoneVariable(name)) return Value::ofObject(current);
  if (isPhoneVariable(name)) throw ScriptError(column, "there is no $" + name + " just now");
  if (const auto lost = lost_.find(name); lost != lost_.end())
    throw ScriptError(column, "$" + name + " belonged to the host and was lost " + lost->second);
  throw ScriptError(column, "there is no variable $" + name);
}

SavedVariables Variables::saved(const std::string& how) const {
  SavedVariables all{{}, lost_};
  for (const auto& [name, value] : values_) {
    if (auto plain = sim::saved(value))
      all.kept.emplace(name, *std::move(plain));
    else
      all.lost.insert_or_assign(name, how);
  }
  return all;
}

void Variables::restore(const SavedVariables& from) {
  const objc::AutoreleasePool pool;
  for (const auto& [name, value] : from.kept) keep(name, restored(value));
  lost_ = from.lost;
}

}  // namespace sim
