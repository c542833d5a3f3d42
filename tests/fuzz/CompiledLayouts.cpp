// Any bytes are a compiled layout, which is written again byte for byte and can be shown, or an
// error with its place.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tools/nibc/nib/Dump.h"
#include "tools/nibc/nib/Reader.h"
#include "tools/nibc/nib/Writer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), count);
  try {
    const nib::Archive archive = nib::read(file);
    if (nib::write(archive) != file || nib::dump(archive).empty()) std::abort();
  } catch (const nib::FormatError& error) {
    if (error.offset > count) std::abort();
  }
  return 0;
}

// Random bytes rarely get beyond the header: most inputs are the tables of a small file.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* bytes, std::size_t count, std::size_t most);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* bytes, std::size_t count,
                                               std::size_t most, unsigned seed) {
  if (seed % 8 != 0 && (count < nib::headerSize || seed % 64 == 1)) {
    nib::Archive archive;
    archive.objects = {{0, 0, 2}, {1, 2, 1}};
    archive.keys = {"a", "b"};
    archive.values = {{0, nib::Integer{1, 1}}, {1, nib::Reference{1}}, {0, nib::Data("\7")}};
    archive.classes = {{"NSObject", {}}, {"X", {0}}};
    const std::string sample = nib::write(archive);
    if (sample.size() <= most) {
      sample.copy(reinterpret_cast<char*>(bytes), sample.size());
      count = sample.size();
    }
  }
  return LLVMFuzzerMutate(bytes, count, most);
}
