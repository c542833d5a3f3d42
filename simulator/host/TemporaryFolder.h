// A folder that is gone when nobody needs it any longer.
#pragma once

#include <filesystem>

namespace sim {

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
};

}  // namespace sim
