#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace sim {

// Everything in that file of the machine's; pipes may be read, too. Nothing, with errno set, when
// it cannot be opened or read.
std::optional<std::string> fileContent(const std::filesystem::path& file);

}  // namespace sim
