// The extension's settings, worded for people.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace sim {

// The phone's thread only. Defaults are those that the extension registers: null before it has
// been loaded, and so are the values.
class Settings {
 public:
  Settings();

  // Each with its default and its value.
  nlohmann::json list() const;
  // {KEY: value…}
  nlohmann::json values() const;
  // As `set` lines, those that the user has changed.
  std::vector<std::string> changedLines() const;

 private:
  nlohmann::json wording_;
};

}  // namespace sim
