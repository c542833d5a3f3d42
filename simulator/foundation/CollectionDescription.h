// How arrays, dictionaries and sets print themselves: the old property list notation.
#pragma once

#include "objc/Object.h"

namespace sim {

// NSString, autoreleased.
objc::Object collectionDescription(objc::Object collection);

}  // namespace sim
