// Property lists in files, binary and XML: strings, booleans, integers, reals, dates, data, arrays
// and dictionaries.
#pragma once

#include <filesystem>
#include <string>

#include "objc/Object.h"
#include "simulator/foundation/PropertyListNode.h"

namespace sim {

// Autoreleased; nil and a reason in *error when there is no such file or it is no property list.
objc::Object readPropertyList(const std::filesystem::path& path, std::string* error);

// Replaces the file as a whole, in the binary format. False, and a reason in *error, when the
// object is no property list (then the reason names what is not) or the file cannot be written.
bool writePropertyList(objc::Object object, const std::filesystem::path& path, std::string* error);

// writeToFile:atomically: of collections; the path is the phone's.
bool writeToPhone(objc::Object self, objc::Object path, bool atomically);

// The same value with every container immutable, autoreleased; nil and a reason in *error when the
// object is no property list.
objc::Object propertyListCopy(objc::Object object, std::string* error);

// Between objects and libplist's nodes. nil, and an empty node with a reason in *error, for what
// no property list of the platform holds.
objc::Object propertyListObject(plist_t node);
PropertyListNode propertyListNode(objc::Object object, std::string* error);

}  // namespace sim
