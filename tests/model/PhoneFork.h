// Plays phone scripts one after another, each on a fresh phone with the extension.
// What all of them begin with is played once: each night's first host is forked behind it.
#pragma once

#include <filesystem>
#include <string>

#include "simulator/host/ScriptPlayer.h"
#include "simulator/host/TemporaryFolder.h"

namespace model {

class PhoneFork {
 public:
  // `package` is what lies on every phone. Throws std::runtime_error when the beginning goes wrong.
  PhoneFork(const std::filesystem::path& extension, const std::filesystem::path& package,
            const std::string& beginning);

  // What was wrong, with the line of the script; empty when all was as expected.
  std::string play(const std::string& script);

 private:
  std::string outcomeOf(const std::string& script);

  sim::TemporaryFolder folder_;
  std::filesystem::path begun_ = folder_.path() / "begun";  // the files that a night begins with
  sim::ScriptPlayer player_;
  sim::ScriptJob job_;
};

}  // namespace model
