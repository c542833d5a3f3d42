#include "simulator/machine/FileContent.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>

namespace sim {
namespace {

// Far above whatever a phone, a script or a playlist holds: it has no end.
constexpr std::size_t endless = std::size_t(256) << 20;

}  // namespace

std::optional<std::string> fileContent(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::nullopt;
  std::string content;
  std::array<char, 65536> part;
  while (stream.read(part.data(), part.size()), stream.gcount() > 0) {
    content.append(part.data(), std::size_t(stream.gcount()));
    if (content.size() < endless) continue;
    errno = EFBIG;
    return std::nullopt;
  }
  if (stream.bad()) return std::nullopt;
  return content;
}

bool isThere(const std::filesystem::path& file) {
  std::error_code problem;
  return std::filesystem::exists(file, problem) || problem;
}

bool liesIn(const std::filesystem::path& folder, const std::filesystem::path& path) {
  return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first ==
         folder.end();
}

}  // namespace sim
