// The panes that packages bring, as the loader of the phone's Settings application finds them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "objc/Ownership.h"
#include "simulator/preferences/Specifier.h"

namespace sim {

inline constexpr std::string_view paneFolder = "/var/jb/Library/PreferenceLoader/Preferences";

struct PaneFolder {
  std::vector<SpecifierList> lists;  // in the order of their paths
  // Of lists that cannot be read, which are left out; of links that lead nowhere; and of lists
  // that nothing leads to.
  std::vector<std::string> problems;

  // Every property list below the folder.
  static PaneFolder read();
  // The list with that base name: so links find theirs; nullptr for none.
  const SpecifierList* named(std::string_view name) const;
};

// The phone's path of a file of this machine.
std::string pathOnPhone(const std::filesystem::path& file);

// In the words of the phone's language: a list in a folder of its own has string tables there.
// What they have not is shown as it is.
class PaneWords {
 public:
  explicit PaneWords(const SpecifierList& list);
  std::string operator()(const std::string& key) const;

 private:
  objc::Strong<objc::Object> bundle_;  // NSBundle; nil: nothing is localised
};

}  // namespace sim
