// What the command line asks for.
#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Action {
  help,
  play,
  resume,  // not for people: what a restarting host calls itself with
  fidelity,
  commands,
};

struct Options {
  Action action = Action::help;
  std::vector<std::filesystem::path> files;
  std::vector<std::filesystem::path> extensions;
  std::optional<std::filesystem::path> package;  // what is installed on the phone, as it lies there
  std::optional<std::filesystem::path> root;     // none: a temporary folder
  std::optional<std::filesystem::path> playlist;  // instead of the scripts' own
  bool quiet = false;
};

// Throws UsageError.
Options parseOptions(const std::vector<std::string>& words);
std::string usageText();

}  // namespace sim
