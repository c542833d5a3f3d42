#include "simulator/machine/FileContent.h"

#include <array>
#include <fstream>

namespace sim {

std::optional<std::string> fileContent(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::nullopt;
  std::string content;
  std::array<char, 65536> part;
  while (stream.read(part.data(), part.size()), stream.gcount() > 0)
    content.append(part.data(), std::size_t(stream.gcount()));
  if (stream.bad()) return std::nullopt;
  return content;
}

}  // namespace sim
