// Reference counts of instances, and the choice between them and overridden methods.
#pragma once

#include <cstddef>
#include <cstdint>

#include "objc/runtime.h"

namespace sim::runtime {

// InstanceHeader::references: the count times oneReference, deallocatingBit once it has
// reached zero, or freedMark.
inline constexpr std::uint32_t deallocatingBit = 1;
inline constexpr std::uint32_t oneReference = 2;
inline constexpr std::uint32_t freedMark = 0xdeadbeef;

// NSObject's retain and release, for objects with an InstanceHeader.
id retainInstance(id object);
void releaseInstance(id object);  // sends dealloc at the last one
std::size_t instanceRetainCount(id object);

// Any kind of object. False once its end has begun.
bool tryRetain(id object);
bool isDeallocating(id object);

}  // namespace sim::runtime
