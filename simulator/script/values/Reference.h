// The language's reference page, made from the commands themselves.
#pragma once

#include <string>

#include "simulator/script/Command.h"

namespace sim {

// Markdown: one section for each command, in alphabetical order.
std::string commandReference(const CommandTable& table);

}  // namespace sim
