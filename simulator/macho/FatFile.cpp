#include "simulator/macho/FatFile.h"

#include <algorithm>

namespace sim::macho {
namespace {

constexpr std::uint32_t thinMagic = 0xFEEDFACF, thin32Magic = 0xFEEDFACE;
constexpr std::uint32_t fatMagic = 0xCAFEBABE, fat64Magic = 0xCAFEBABF;
// Files of Java classes begin with the same number; theirs of versions follows.
constexpr std::uint32_t mostSlices = 30;

Architecture architectureOf(const Bytes& slice) {
  const auto magic = slice.read<std::uint32_t>(0);
  const Architecture found{slice.read<std::uint32_t>(4), slice.read<std::uint32_t>(8)};
  // One of 32 bits is never chosen, but older libraries have it beside the others.
  const bool is32Bits = magic == thin32Magic && found.cpu != arm64.cpu;
  if (magic != thinMagic && !is32Bits) throw Error("is damaged: a slice does not begin as one");
  return found;
}

// The phones' loader takes no file in which two slices share bytes.
void requireApart(const std::vector<SliceBytes>& slices) {
  const auto overlap = [](const Bytes& one, const Bytes& other) {
    return one.data() < other.data() + other.size() && other.data() < one.data() + one.size();
  };
  for (const SliceBytes& slice : slices)
    for (const SliceBytes& other : slices)
      if (&slice != &other && overlap(slice.bytes, other.bytes))
        throw Error("is damaged: two slices overlap");
}

const SliceBytes* find(const std::vector<SliceBytes>& slices, const Architecture& wanted) {
  const auto found = std::ranges::find(slices, wanted, &SliceBytes::architecture);
  return found != slices.end() ? &*found : nullptr;
}

}  // namespace

std::string Architecture::name() const {
  constexpr std::uint32_t withoutFlags = 0xFFFFFF;
  if (*this == arm64e) return "arm64e";
  switch (cpu) {
    case arm64.cpu:
      if ((subtype & withoutFlags) == 2) return subtype == 2 ? "arm64e.old" : "arm64e.unknown";
      return (subtype & withoutFlags) == 0 ? "arm64" : "arm64.unknown";
    case 0x01000007:
      return "x86_64";
    case 0x0000000C:
      return "arm";
    case 0x00000007:
      return "i386";
    default:
      return "processor " + std::to_string(cpu);
  }
}

bool isMachO(const Bytes& file) {
  if (file.size() < 8) return false;
  const auto magic = file.read<std::uint32_t>(0);
  if (magic == thinMagic || magic == thin32Magic) return true;
  const std::uint32_t fat = file.readBigEndian(0);
  return fat == fat64Magic || (fat == fatMagic && file.readBigEndian(4) <= mostSlices);
}

std::vector<SliceBytes> slicesOf(const Bytes& file) {
  const std::uint32_t magic = file.readBigEndian(0);
  if (magic == fat64Magic) throw Error("is a fat file of more than 4 GB");
  if (magic != fatMagic) return {{architectureOf(file), file}};
  constexpr std::uint64_t headerSize = 8, entrySize = 20;
  const std::uint32_t count = file.readBigEndian(4);
  if (count == 0) throw Error("is damaged: it has no slices");
  if (count > mostSlices) throw Error("is damaged: too many slices");
  std::vector<SliceBytes> slices;
  for (std::uint32_t index = 0; index < count; ++index) {
    const std::uint64_t entry = headerSize + index * entrySize;
    const Bytes slice =
        file.part(file.readBigEndian(entry + 8), file.readBigEndian(entry + 12), "a slice");
    slices.push_back({architectureOf(slice), slice});
  }
  requireApart(slices);
  return slices;
}

std::string namesOf(const std::vector<SliceBytes>& slices) {
  std::string names;
  for (const SliceBytes& slice : slices)
    names += (names.empty() ? "" : ", ") + slice.architecture.name();
  return names;
}

const SliceBytes& choose(const std::vector<SliceBytes>& slices, bool authenticates) {
  const SliceBytes* plain = find(slices, arm64);
  const SliceBytes* signing = find(slices, arm64e);
  if (signing != nullptr && authenticates) return *signing;
  if (plain != nullptr) return *plain;
  if (signing != nullptr)
    throw Error("has only code that signs its pointers (arm64e), and this processor cannot");
  throw Error("has no code for arm64 or arm64e, only for: " + namesOf(slices));
}

}  // namespace sim::macho
