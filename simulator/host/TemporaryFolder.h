// A folder that is gone when nobody needs it any longer.
#pragma once

#include <filesystem>

namespace sim {

// As long as somebody needs it, it is locked. Whoever makes one removes those before that were left
// behind: their programs had no time to.
class TemporaryFolder {
 public:
  // Throws std::system_error.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
  int lock_;
};

}  // namespace sim
