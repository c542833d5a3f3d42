// Plays phone scripts one after another, each on a fresh phone. The classes of the phone are
// registered once; every host process, of the first launch and of each restart, is a fork of the
// process that stands there, which is much cheaper than a program of its own.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/script/Command.h"
#include "simulator/script/Session.h"
#include "simulator/script/words/Script.h"

namespace model {

class PhoneFork {
 public:
  // `package` is what lies on every phone.
  PhoneFork(const std::filesystem::path& extension, const std::filesystem::path& package);

  // What was wrong, with the line of the script; empty when all was as expected.
  std::string play(const std::string& script);

 private:
  using Lines = std::vector<sim::ScriptLine>;

  void eraseTheNightBefore() const;
  int runHost(const Lines& script, const std::optional<std::filesystem::path>& state);
  [[noreturn]] void beHost(const Lines& script, const std::optional<std::filesystem::path>& state);
  std::string errors() const;

  sim::TemporaryFolder folder_;
  sim::Session session_;
  sim::CommandTable commands_;
};

}  // namespace model
