// The phone's settings application: a process of its own that changes preferences domains in
// their files. It knows nothing of the host's classes.
#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace sim {

struct NoValue {};
using SettingsValue =
    std::variant<NoValue, bool, long, double, std::string, std::vector<char>>;  // the last: data

// Changes one key of a domain's file, as a whole; NoValue removes the key. A file that is not
// readable is set aside first. Throws std::runtime_error when the file cannot be written.
void writeSetting(const std::filesystem::path& file, const std::string& key,
                  const SettingsValue& value);

}  // namespace sim
