// Any text is a type encoding or an error; what is normalised once stays as it is. A first type can
// be looked for in any text, and is there where all of it is types.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>

#include "simulator/foundation/TypeEncoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string_view text(reinterpret_cast<const char*>(bytes), count);
  std::string normalized;
  const auto first = sim::firstType(text);
  try {
    normalized = sim::normalizedTypes(text);
  } catch (const std::invalid_argument&) {
    return 0;
  }
  if (sim::normalizedTypes(normalized) != normalized) std::abort();
  if (!first || !normalized.starts_with(first->text)) std::abort();
  return 0;
}
