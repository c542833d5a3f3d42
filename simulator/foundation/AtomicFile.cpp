#include "simulator/foundation/AtomicFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <system_error>

namespace sim {
namespace {

bool writeAll(int file, std::string_view content) {
  while (!content.empty()) {
    const auto written = ::write(file, content.data(), content.size());
    if (written < 0) return false;
    content.remove_prefix(std::size_t(written));
  }
  return ::fchmod(file, 0644) == 0;
}

bool fail(const std::filesystem::path& path, std::string* error) {
  *error = path.string() + ": " + std::strerror(errno);
  return false;
}

}  // namespace

bool writeFileAtomically(const std::filesystem::path& path, std::string_view content,
                         std::string* error) {
  std::error_code problem;
  std::filesystem::create_directories(path.parent_path(), problem);
  std::string temporary = path.string() + ".XXXXXX";
  const int file = ::mkstemp(temporary.data());
  if (file < 0) return fail(path, error);
  const bool written = writeAll(file, content);
  const bool closed = ::close(file) == 0;
  if (written && closed && ::rename(temporary.c_str(), path.c_str()) == 0) return true;
  fail(path, error);
  ::unlink(temporary.c_str());
  return false;
}

}  // namespace sim
