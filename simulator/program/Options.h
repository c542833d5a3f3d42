// What the command line asks for.
#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "simulator/macho/FatFile.h"

namespace sim {

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Action {
  help,
  play,
  serve,
  fidelity,
  commands,
  version,
};

struct Options {
  Action action = Action::help;
  std::vector<std::filesystem::path> files;
  std::vector<std::filesystem::path> extensions;
  std::optional<macho::Architecture> slice;      // of files for phones; none: the processor's
  std::optional<std::filesystem::path> package;  // what is installed on the phone, as it lies there
  std::optional<std::filesystem::path> root;     // none: a temporary folder
  std::optional<std::filesystem::path> playlist;  // instead of the scripts' own
  // All that scripts may name; none: for `play` anything, for `serve` a temporary folder.
  std::optional<std::filesystem::path> folder;
  bool quiet = false;
  double limit = 60;  // seconds of processor time for one script; 0: any

  std::optional<int> port;                      // none: a usual one that is free
  std::optional<std::filesystem::path> web;     // the page's files; none: its own
  std::optional<std::filesystem::path> script;  // to be played step by step
  bool music = true;                            // false: nothing to play, no folder
  bool paused = false;                          // time waits for somebody to start it
  std::optional<std::string> token;             // the secret; none: a new one, by chance
};

// Throws UsageError.
Options parseOptions(const std::vector<std::string>& words);
std::string usageText();

}  // namespace sim
