// Key-value coding: valueForKey:, setValue:forKey: and their key paths.
#pragma once

#include <string>

#include "objc/Object.h"

namespace sim {

// Whether valueForKey: of the object finds a value, asked before a wrong key stops the program: by
// an accessor, an instance variable or an element, or since the class answers for undefined keys
// itself.
bool hasValueForKey(objc::Object object, const std::string& key);

void addKeyValueCoding();

}  // namespace sim
