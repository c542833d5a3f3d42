// Key-value coding: valueForKey:, setValue:forKey: and their key paths.
#pragma once

#include <string>

#include "objc/Object.h"

namespace sim {

void addKeyValueCoding();

}  // namespace sim
