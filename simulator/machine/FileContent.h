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

}  // namespace sim
