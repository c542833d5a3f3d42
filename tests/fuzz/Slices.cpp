// Any file is one for phones that the loader could map, or is refused. What it would write into
// memory lies in memory, and so does what it would run.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "simulator/macho/Slice.h"

namespace {

using namespace sim::macho;

void requireInside(const Slice& slice, std::uint64_t place, std::uint64_t size) {
  const std::uint64_t offset = place - slice.begin();
  if (place < slice.begin() || offset > slice.size() || size > slice.size() - offset) std::abort();
}

void check(const Slice& slice) {
  for (const Segment& segment : slice.segments()) {
    requireInside(slice, segment.address, segment.size);
    if (segment.bytes.size() > segment.size) std::abort();
  }
  for (const Section& section : slice.sections())
    requireInside(slice, section.address, section.size);
  for (const Fixup& fixup : slice.fixups().all) {
    requireInside(slice, fixup.place, sizeof(void*));
    if (fixup.import == Fixup::none)
      requireInside(slice, slice.begin() + fixup.target, 0);
    else if (fixup.import >= slice.fixups().imports.size())
      std::abort();
  }
  for (const std::uint64_t initialiser : slice.initialisers())
    requireInside(slice, slice.begin() + initialiser, 4);
  for (const auto& [name, offset] : slice.exports()) slice.sizeOfExport(slice.begin() + offset);
  for (const Library& library : slice.libraries()) library.name();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const Bytes file({reinterpret_cast<const char*>(bytes), count}, "the file");
  if (!isMachO(file)) return 0;
  try {
    for (const SliceBytes& slice : slicesOf(file)) check(Slice(slice));
  } catch (const Error&) {
    return 0;
  }
  return 0;
}
