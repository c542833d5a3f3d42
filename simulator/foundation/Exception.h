// Foundation's exceptions. Nothing on the simulated phone catches them: the program ends with
// the line that the platform prints for an uncaught one.
#pragma once

#include <cstddef>
#include <string>

#include "objc/Object.h"

namespace sim {

[[noreturn]] void raiseException(const char* name, const std::string& reason);

// "-[NSArray objectAtIndex:]", with the receiver's own class.
std::string methodName(objc::Object receiver, const char* selector);

// Raise, in the platform's words, for an argument that is nil: of a collection's method, and of its
// initialisers' list of objects.
void requireObject(objc::Object receiver, const char* selector, objc::Object argument);
void requireElement(const char* collection, objc::Object element, std::size_t index);

// Raises for an argument of a class that the method cannot use: the platform fails there, too, with
// the first message that the argument does not know.
[[noreturn]] void raiseWrongClass(const char* selector, objc::Object argument, const char* wanted);

// "<NSArray: 0x280000040>"
std::string addressDescription(objc::Object object);

}  // namespace sim
