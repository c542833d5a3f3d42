// Files that are either wholly old or wholly new, whenever the process dies.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sim {

// Makes the folders on the way. False, and the reason in *error, when nothing was replaced.
bool writeFileAtomically(const std::filesystem::path& path, std::string_view content,
                         std::string* error);

}  // namespace sim
