// Whether key-value coding would find a key, asked before a wrong one stops the program.
#pragma once

#include <string>

#include "objc/Object.h"

namespace sim {

// YES when valueForKey: of the object finds an accessor, an instance variable or an element, or
// when the class answers for undefined keys itself.
bool hasValueForKey(objc::Object object, const std::string& key);

}  // namespace sim
