// The file in which a preferences domain is kept.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sim {

// On this machine; it need not exist.
std::filesystem::path preferencesFile(std::string_view domain);

// Moves a file that cannot be read out of the way, as FILE.corrupt, and says so on stderr: the
// domain counts as empty then, and nothing overwrites what may still be rescued by hand.
// `reason` names the file.
void quarantine(const std::filesystem::path& file, const std::string& reason);

}  // namespace sim
