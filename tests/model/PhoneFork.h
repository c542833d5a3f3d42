// Plays phone scripts one after another, each on a fresh phone with the extension.
#pragma once

#include <filesystem>
#include <string>

#include "simulator/host/ScriptPlayer.h"
#include "simulator/host/TemporaryFolder.h"

namespace model {

class PhoneFork {
 public:
  // `package` is what lies on every phone.
  PhoneFork(const std::filesystem::path& extension, const std::filesystem::path& package);

  // What was wrong, with the line of the script; empty when all was as expected.
  std::string play(const std::string& script);

 private:
  void eraseTheNightBefore() const;

  sim::TemporaryFolder folder_;
  sim::ScriptPlayer player_;
  sim::ScriptJob job_;
};

}  // namespace model
