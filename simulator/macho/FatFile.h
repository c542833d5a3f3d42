// Files with a slice for each kind of processor, or with one slice alone.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "simulator/macho/Bytes.h"

namespace sim::macho {

struct Architecture {
  std::uint32_t cpu, subtype;

  // By the number that the slice itself has; one of an older form of arm64e is "arm64e.old".
  std::string name() const;
  bool operator==(const Architecture&) const = default;
};

inline constexpr Architecture arm64{0x0100000C, 0};
// With the bit that says that the ABI has a version, 0: what the phones' loader takes.
inline constexpr Architecture arm64e{0x0100000C, 0x80000002};

struct SliceBytes {
  Architecture architecture;
  Bytes bytes;
};

// By its first four bytes, so also for files that are damaged behind them.
bool isMachO(const Bytes& file);

// In the file's order. Throws Error.
std::vector<SliceBytes> slicesOf(const Bytes& file);
std::string namesOf(const std::vector<SliceBytes>& slices);  // "arm64, arm64e"

// What a phone whose processor authenticates pointers loads is the arm64e slice, and no other; here
// it takes arm64 where there is nothing else. `authenticates`: of this processor. Throws Error when
// there is none for it.
const SliceBytes& choose(const std::vector<SliceBytes>& slices, bool authenticates);

}  // namespace sim::macho
