#include "simulator/script/Command.h"

namespace sim {

void CommandTable::add(Command command) {
  const std::string name = command.name;
  if (!commands_.emplace(name, std::move(command)).second)
    throw std::logic_error("the script command " + name + " is added twice");
}

const Command* CommandTable::find(std::string_view name) const {
  const auto found = commands_.find(name);
  return found == commands_.end() ? nullptr : &found->second;
}

}  // namespace sim
