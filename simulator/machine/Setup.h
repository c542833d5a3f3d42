// What kind of phone is simulated: everything that is decided before it boots.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sim {

struct Setup {
  std::string systemVersion = "15.4";  // UIDevice systemVersion
  std::string locale = "en_US";        // identifier
  std::string processName = "SpringBoard";
  long feedbackSupportLevel = 2;                  // UIDevice _feedbackSupportLevel, 0 to 2
  std::optional<std::filesystem::path> playlist;  // M3U, instead of those that scripts name
  std::set<std::string, std::less<>> missingClasses;
  // "SBMediaController pause": the class exists without this method.
  std::set<std::string, std::less<>> missingMethods;
  std::vector<std::string> foreignClasses;  // of other extensions, which have loaded before

  bool journalsClassChanges = false;  // what extensions do to classes as they load
  std::vector<std::pair<std::string, std::string>>
      traced;  // class and selector, see launch/Tracing.h

  bool hasClass(std::string_view name) const { return !missingClasses.contains(name); }
  bool hasMethod(std::string_view cls, std::string_view selector) const {
    return !missingMethods.contains(std::string(cls) + ' ' + std::string(selector));
  }
};

}  // namespace sim
