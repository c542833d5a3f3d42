#include "tools/nibc/nib/Cursor.h"

#include "tools/nibc/nib/Reader.h"

namespace nib {

std::string_view Cursor::take(std::size_t count, const char* what) {
  if (count > bytes_.size() - offset_)
    throw FormatError(offset_, std::string("the file ends within ") + what);
  const std::string_view taken = bytes_.substr(offset_, count);
  offset_ += count;
  return taken;
}

std::uint64_t Cursor::fixed(unsigned bytes, const char* what) {
  const std::string_view taken = take(bytes, what);
  std::uint64_t value = 0;
  for (unsigned i = 0; i < bytes; ++i) value |= std::uint64_t(std::uint8_t(taken[i])) << (8 * i);
  return value;
}

// Seven bits a byte, the lowest first; unlike elsewhere, the set top bit marks the last byte.
std::uint32_t Cursor::varint(const char* what) {
  const std::size_t start = offset_;
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift <= 28; shift += 7) {
    const auto byte = std::uint8_t(take(1, what)[0]);
    value |= std::uint64_t(byte & 0x7f) << shift;
    if ((byte & 0x80) == 0) continue;
    if (value > UINT32_MAX) break;
    if (byte == 0x80 && shift > 0)
      throw FormatError(start, std::string(what) + " is written longer than it needs");
    return std::uint32_t(value);
  }
  throw FormatError(start, std::string(what) + " does not fit into 32 bits");
}

std::uint32_t Cursor::index(std::uint32_t limit, const char* what) {
  const std::size_t start = offset_;
  const std::uint32_t value = varint(what);
  if (value < limit) return value;
  throw FormatError(start, std::string(what) + " " + std::to_string(value) +
                               " does not exist: " + "there are " + std::to_string(limit));
}

}  // namespace nib
