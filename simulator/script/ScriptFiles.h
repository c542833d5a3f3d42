// The files of this machine that a script's commands name.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace sim {

struct Word;

class ScriptFiles {
 public:
  ScriptFiles() = default;  // from the folder that the program runs in

  // Relative names are meant from the folder; every file of the machine can be named.
  static ScriptFiles from(std::filesystem::path folder) { return {std::move(folder), false}; }
  // What lies below the folder, and nothing else: no absolute path, no "..", nothing that is
  // reached through a link, nothing but plain files.
  static ScriptFiles below(std::filesystem::path folder) { return {std::move(folder), true}; }

  // Nothing when there is no such file or it cannot be read. ScriptError, at the word, for a name
  // that leads elsewhere.
  std::optional<std::string> read(const Word& name) const;
  // Replaces the file. ScriptError, at the word, when it cannot be written or the name leads
  // elsewhere.
  void write(const Word& name, std::string_view content) const;
  // For messages: its path; of a bounded folder, which is not the script's business, only the name.
  std::string shown(const Word& name) const;

  // Told the name of every file that has been written.
  std::function<void(const std::string& name)> whenWritten;

 private:
  ScriptFiles(std::filesystem::path folder, bool isBounded)
      : folder_(std::move(folder)), isBounded_(isBounded) {}

  std::filesystem::path folder_;
  bool isBounded_ = false;
};

// Those of this phone's script. A session says where they are.
ScriptFiles& scriptFiles();

}  // namespace sim
