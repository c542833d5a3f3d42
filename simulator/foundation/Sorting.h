// Sorting by the two ways in which Foundation is told an order.
#pragma once

#include <vector>

#include "objc/Block.h"

namespace sim {

using Comparator = objc::Block<long(objc::Object, objc::Object)>;  // -1, 0 or 1
using ObjectList = std::vector<objc::Strong<objc::Object>>;

// Stable.
ObjectList sorted(ObjectList elements, SEL compare);
ObjectList sorted(ObjectList elements, Comparator comparator);

}  // namespace sim
