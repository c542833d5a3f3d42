// The pointers of a slice that depend on where it lies and on what it imports. They form chains:
// each holds the distance to the next.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "simulator/macho/Bytes.h"

namespace sim::macho {

struct Segment;

struct Import {
  // Which library: from 1 in the order of Slice::libraries(); below it, whichever has it.
  int library;
  bool isWeak;  // the slice does without it
  std::string name;
};

struct Fixup {
  static constexpr std::uint32_t none = ~std::uint32_t{0};

  std::uint64_t place;   // an address as the segments have them
  std::uint32_t import;  // none: the target is in the slice itself
  std::uint64_t target;  // from the slice's beginning; of an import: bytes behind it
};

struct Fixups {
  std::vector<Import> imports;
  std::vector<Fixup> all;
};

// Throws Error when they are damaged or of a format that the platform's loader takes with signed
// pointers only.
Fixups readFixups(const Bytes& table, const std::vector<Segment>& segments);

}  // namespace sim::macho
