#include <array>
#include <stdexcept>

#include "simulator/drawing/SvgWriter.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

std::string base64(std::string_view bytes) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    std::array<unsigned char, 3> group{};
    for (std::size_t k = 0; k < count; ++k) group[k] = static_cast<unsigned char>(bytes[i + k]);
    const unsigned bits = unsigned(group[0]) << 16 | unsigned(group[1]) << 8 | unsigned(group[2]);
    for (std::size_t k = 0; k < 4; ++k)
      text += k <= count ? digits[bits >> (18 - 6 * k) & 63] : '=';
  }
  return text;
}

}  // namespace

std::string embeddedImage(const std::string& file) {
  const auto bytes = fileContent(Phone::current().file(file));
  if (!bytes) throw std::runtime_error("the phone has no image " + file);
  return "data:image/png;base64," + base64(*bytes);
}

std::string namedImage(const std::string& file) {
  return file;
}

}  // namespace sim
