// Scalars and structures of C as objects and back, by their type encodings.
#pragma once

#include <string_view>

#include "objc/Object.h"

namespace sim {

// Objects, numbers, and the structures of the platform's geometry.
bool canBox(std::string_view encoding);

// Sends a message without arguments whose result is of that type. Autoreleased.
objc::Object sendBoxed(objc::Object receiver, SEL selector, std::string_view resultType);

// Sends a message with one argument of that type.
void sendUnboxed(objc::Object receiver, SEL selector, std::string_view argumentType,
                 objc::Object value);

// A value in memory, and what stores into it. An object in memory is retained by what stores it.
objc::Object boxed(const void* bytes, std::string_view encoding);
void storeUnboxed(void* bytes, std::string_view encoding, objc::Object value);

}  // namespace sim
