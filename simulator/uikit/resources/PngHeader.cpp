#include "simulator/uikit/resources/PngHeader.h"

#include <array>
#include <fstream>
#include <string_view>

namespace sim {
namespace {

// The signature and the whole first chunk: length, name, width, height, five bytes on the format of
// a pixel, checksum.
constexpr std::size_t headerLength = 8 + 8 + 13 + 4;
constexpr std::string_view beginning("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16);

std::uint32_t bigEndian(std::string_view bytes) {
  std::uint32_t value = 0;
  for (const char byte : bytes) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

}  // namespace

std::optional<PixelSize> pngSize(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::array<char, headerLength> bytes;
  if (!stream.read(bytes.data(), bytes.size())) return std::nullopt;
  const std::string_view header(bytes.data(), bytes.size());
  const PixelSize size = {bigEndian(header.substr(16, 4)), bigEndian(header.substr(20, 4))};
  const bool valid = header.starts_with(beginning) && size.width > 0 && size.height > 0;
  return valid ? std::optional(size) : std::nullopt;
}

}  // namespace sim
