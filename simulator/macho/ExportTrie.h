// The names that a slice exports: a tree in which each edge is a part of names.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "simulator/macho/Bytes.h"

namespace sim::macho {

// From the name, with its underscore, to the offset from the slice's beginning.
using Exports = std::map<std::string, std::uint64_t>;

// Throws Error when it is damaged, or has exports that stand for those of another library.
Exports readExports(const Bytes& trie);

}  // namespace sim::macho
