// Foundation's values from C++ and back, for the stand-ins and the script language.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "objc/Ownership.h"

namespace sim {

// All results are autoreleased (+0).
objc::Object string(std::string_view utf8);
objc::Object number(bool value);  // prints as YES or NO in the journal, 1 or 0 as description
objc::Object number(long value);
objc::Object number(double value);
objc::Object date(double secondsSinceReferenceDate);
objc::Object array(const std::vector<objc::Object>& elements);
objc::Object dictionary(const std::vector<std::pair<objc::Object, objc::Object>>& keysAndValues);

// An NSString's characters as UTF-8; empty for nil. Stops the program for another class.
std::string text(objc::Object string);
// What %@ prints: the object's description; "(null)" for nil.
std::string description(objc::Object object);
// Journal notation: "quoted" strings, YES and NO for booleans, shortest exact numbers, nil, dates
// as 2027-01-01 22:00:00 +0000, <Class> for other objects.
std::string notation(objc::Object object);

bool isKindOf(objc::Object object, const char* className);

}  // namespace sim
