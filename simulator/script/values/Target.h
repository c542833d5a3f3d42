// Objects and values that scripts name: Class.selector.key, $name.key.
#pragma once

#include "simulator/foundation/invocation/Value.h"
#include "simulator/script/Command.h"

namespace sim {

// A path starts at a class or a variable. Each step sends a message without arguments when the
// receiver has such a method, else asks for the key's value (KVC); a number is an array's index,
// x, y, width, height, origin, size, top, left, bottom and right are members of a structure.
// Throws ScriptError at the column of the step that fails.
Value evaluateTarget(const Word& path);
Value evaluateTarget(Arguments& arguments);

// The object at the path, autoreleased; ScriptError when it is nil or no object.
objc::Object targetObject(const Word& path);
objc::Object targetObject(Arguments& arguments);

}  // namespace sim
