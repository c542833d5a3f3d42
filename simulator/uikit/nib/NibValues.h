// Objects of a layout that do not decode themselves: texts, numbers, collections, colours, fonts,
// images and the proxies of what lies outside.
#pragma once

#include <string>

#include "objc/Ownership.h"

namespace sim {

class NibDecoding;

bool isNibValueClass(const std::string& name);

// For an object of such a class. nil for a collection with a nil element.
objc::Strong<objc::Object> nibValue(NibDecoding& decoding, std::uint32_t index);

}  // namespace sim
