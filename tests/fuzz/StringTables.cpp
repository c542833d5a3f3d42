// Any bytes are a table of texts, which reads the same once it is written, or none.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "simulator/foundation/StringsTable.h"

namespace {

std::string quoted(const std::string& text) {
  std::string written = "\"";
  for (const char letter : text) {
    if (letter == '"' || letter == '\\') written += '\\';
    written += letter;
  }
  return written + '"';
}

std::string written(const sim::StringsTable& table) {
  std::string text = "/* table */\n";
  for (const auto& [key, value] : table) text += quoted(key) + " = " + quoted(value) + ";\n";
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const auto table = sim::parseStrings({reinterpret_cast<const char*>(bytes), count});
  if (table && sim::parseStrings(written(*table)) != table) std::abort();
  return 0;
}
