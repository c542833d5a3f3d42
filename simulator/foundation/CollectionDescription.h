// How arrays, dictionaries and sets print themselves: the old property list notation.
#pragma once

#include <string>

#include "objc/Object.h"

namespace sim {

std::string collectionDescription(objc::Object collection);

}  // namespace sim
