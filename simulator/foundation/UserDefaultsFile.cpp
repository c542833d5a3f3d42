#include "simulator/foundation/UserDefaultsFile.h"

#include <cstdio>
#include <system_error>

#include "simulator/machine/FileContent.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

// Beside the file, under a name that is free: what is set aside stays.
std::filesystem::path freeName(const std::filesystem::path& file) {
  std::filesystem::path name = file.string() + ".corrupt";
  for (int count = 2; isThere(name); ++count)
    name = file.string() + ".corrupt-" + std::to_string(count);
  return name;
}

void setAside(const std::filesystem::path& file, const std::string& reason) {
  const std::filesystem::path kept = freeName(file);
  std::error_code problem;
  std::filesystem::rename(file, kept, problem);
  if (problem) {
    std::fprintf(stderr, "user defaults: %s; cannot be set aside: %s\n", reason.c_str(),
                 problem.message().c_str());
  } else {
    std::fprintf(stderr, "user defaults: %s; kept as %s\n", reason.c_str(), kept.c_str());
  }
}

}  // namespace

std::filesystem::path userDefaultsFile() {
  return Phone::current().file("/var/mobile/Library/Preferences/com.apple.springboard.plist");
}

PropertyListNode loadUserDefaults() {
  const std::filesystem::path file = userDefaultsFile();
  if (!isThere(file)) return PropertyListNode(plist_new_dict());
  std::string problem;
  PropertyListNode root = loadNode(file, &problem);
  if (root && plist_get_node_type(root.get()) == PLIST_DICT) return root;
  setAside(file, root ? file.string() + ": holds no dictionary" : problem);
  return PropertyListNode(plist_new_dict());
}

bool saveUserDefaults(plist_t dictionary) {
  std::string problem;
  if (saveNode(dictionary, userDefaultsFile(), &problem)) return true;
  std::fprintf(stderr, "user defaults: %s\n", problem.c_str());
  return false;
}

}  // namespace sim
