// Documents of layers: XML whose elements are layers, and whose attributes and inner elements are
// their properties, with the states that the layers can take on and the ways between them.
#pragma once

#include <string>
#include <string_view>

#include "objc/Ownership.h"
#include "simulator/quartzcore/caml/Error.h"

namespace sim::caml {

// The one object that the document holds. `folder` is where its images are, on the phone. Throws
// Error for what is no such document, and where limits of size and depth are passed.
objc::Strong<objc::Object> read(std::string_view document, const std::string& folder);

// "3:15", both counted from 1.
std::string lineAndColumn(std::string_view document, std::size_t offset);

}  // namespace sim::caml
