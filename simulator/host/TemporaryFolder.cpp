#include "simulator/host/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace sim {

namespace files = std::filesystem;

namespace {

constexpr const char* beginOfName = "dozewell-";
constexpr std::size_t lengthOfName = 15;  // with six letters by chance

// A descriptor that holds the folder's lock; below 0 when it cannot be had, for whatever reason.
int locked(const files::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (descriptor < 0) return -1;
  struct stat opened {
  }, named{};
  const bool isOurs = flock(descriptor, LOCK_EX | LOCK_NB) == 0 &&
                      fstat(descriptor, &opened) == 0 && opened.st_uid == geteuid() &&
                      // Between making and locking it somebody may have taken it for left behind.
                      lstat(folder.c_str(), &named) == 0 && named.st_ino == opened.st_ino;
  if (isOurs) return descriptor;
  close(descriptor);
  return -1;
}

void removeLeftBehind() {
  std::error_code ignored;  // nothing depends on it: the system cleans its folder, too
  for (const auto& each : files::directory_iterator(files::temp_directory_path(ignored), ignored)) {
    const std::string name = each.path().filename().string();
    if (name.size() != lengthOfName || !name.starts_with(beginOfName)) continue;
    const int lock = locked(each.path());
    if (lock < 0) continue;
    files::remove_all(each.path(), ignored);
    close(lock);
  }
}

}  // namespace

TemporaryFolder::TemporaryFolder() : lock_(-1) {
  removeLeftBehind();
  // A file system without locks leaves it unlocked.
  for (int tries = 0; lock_ < 0 && tries < 10; ++tries) {
    if (!path_.empty()) rmdir(path_.c_str());
    std::string name = files::temp_directory_path() / (std::string(beginOfName) + "XXXXXX");
    if (mkdtemp(name.data()) == nullptr)
      throw std::system_error(errno, std::generic_category(), name);
    path_ = name;
    lock_ = locked(path_);
  }
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  files::remove_all(path_, ignored);
  close(lock_);
}

}  // namespace sim
