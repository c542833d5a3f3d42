// What the commands that send messages and call functions share.
#pragma once

#include "simulator/foundation/invocation/Value.h"
#include "simulator/script/Command.h"

namespace sim {

// Every remaining word, as arguments of these types.
std::vector<Value> readArguments(Arguments& arguments, const Signature& signature);

// A C function's name and its arguments, to the end of the line: calls it.
Value readCall(Arguments& arguments);

}  // namespace sim
