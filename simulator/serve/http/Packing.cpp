#include "simulator/serve/http/Packing.h"

#include <brotli/encode.h>

#include <cstdint>
#include <stdexcept>

namespace sim {
namespace {

constexpr int quality = 5;  // of 11: above it, bytes become few and moments many
constexpr int window = 18;  // bits: no file of the page is longer

}  // namespace

std::string packed(const std::string& text) {
  std::size_t size = BrotliEncoderMaxCompressedSize(text.size());
  std::string result(size, '\0');
  if (!BrotliEncoderCompress(quality, window, BROTLI_MODE_TEXT, text.size(),
                             reinterpret_cast<const std::uint8_t*>(text.data()), &size,
                             reinterpret_cast<std::uint8_t*>(result.data())))
    throw std::runtime_error("cannot pack " + std::to_string(text.size()) + " bytes");
  result.resize(size);
  return result;
}

}  // namespace sim
