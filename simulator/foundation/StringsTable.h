// String tables: NAME.strings, as a property list or in the old text form
//
//   /* comment */ "key" = "value";
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace sim {

using StringsTable = std::map<std::string, std::string, std::less<>>;

// The old text form, in UTF-8 or UTF-16. One mistake in it, and there is nothing: so it is on the
// platform.
std::optional<StringsTable> parseStrings(std::string_view bytes);

// In any form. Nothing when there is no such file or it is no string table.
std::optional<StringsTable> readStrings(const std::filesystem::path& path);

}  // namespace sim
