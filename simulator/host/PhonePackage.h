// The files that come onto a phone with the extension.
#pragma once

#include <filesystem>

namespace sim {

// Over what an earlier version has left on a phone that is kept. Where a phone has links, as for
// /var/jb, the phone gets what they lead to. Throws std::filesystem::filesystem_error.
void installPackage(const std::filesystem::path& package, const std::filesystem::path& root);

}  // namespace sim
