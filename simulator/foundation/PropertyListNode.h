// libplist's nodes with owners, and the files they come from. Needs no Objective-C class, so it
// works before the phone boots, too.
#pragma once

#include <plist/plist.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace sim {

struct NodeFree {
  using pointer = plist_t;
  void operator()(plist_t node) const { plist_free(node); }
};
using PropertyListNode = std::unique_ptr<void, NodeFree>;

// Empty, and a reason in *error, when there is no such file or it is no property list.
PropertyListNode loadNode(const std::filesystem::path& path, std::string* error);
// Atomically, in the binary format.
bool saveNode(plist_t node, const std::filesystem::path& path, std::string* error);

// An integer as property lists have them: 64 bits, signed, or unsigned beyond the signed ones.
struct PropertyListInteger {
  std::int64_t value;
  bool isUnsigned;  // `value` holds the bits
};

// libplist's own functions for these know no sign, and cut dates to 32 bits and microseconds.
PropertyListInteger integerOf(plist_t node);
double dateOf(plist_t node);  // seconds since the reference date
PropertyListNode makeInteger(PropertyListInteger integer);
PropertyListNode makeDate(double secondsSinceReferenceDate);

}  // namespace sim
