// Any text is a type encoding or an error; what is normalised once stays as it is.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>

#include "simulator/phone/script/TypeEncoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string_view text(reinterpret_cast<const char*>(bytes), count);
  std::string normalized;
  try {
    normalized = sim::normalizedTypes(text);
  } catch (const std::invalid_argument&) {
    return 0;
  }
  if (sim::normalizedTypes(normalized) != normalized) std::abort();
  return 0;
}
