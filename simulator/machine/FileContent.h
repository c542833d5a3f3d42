#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace sim {

// Everything in that file of the machine's; pipes may be read, too. Nothing, with errno set, when
// it cannot be opened or read, or when it has no end, as devices.
std::optional<std::string> fileContent(const std::filesystem::path& file);

// Whether there is something of that name, even if nobody can read it, such as a link to itself.
bool isThere(const std::filesystem::path& file);

// Of absolute paths without links: whether it is the folder or below it.
bool liesIn(const std::filesystem::path& folder, const std::filesystem::path& path);

}  // namespace sim
