#include "simulator/cephei/PreferencesFile.h"

#include <cstdio>
#include <system_error>

#include "simulator/machine/Phone.h"

namespace sim {

std::filesystem::path preferencesFile(std::string_view domain) {
  // On a root-less phone the domains of everything that is not the system's own lie here.
  return Phone::current().file("/var/jb/var/mobile/Library/Preferences/" + std::string(domain) +
                               ".plist");
}

void quarantine(const std::filesystem::path& file, const std::string& reason) {
  auto kept = file;
  kept += ".corrupt";
  std::error_code failure;
  std::filesystem::rename(file, kept, failure);
  const std::string fate =
      failure ? "it cannot be moved away: " + failure.message() : "kept as " + kept.string();
  std::fprintf(stderr, "%s; %s; the preferences count as empty\n", reason.c_str(), fate.c_str());
}

}  // namespace sim
