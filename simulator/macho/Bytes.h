// Reading of bytes that anybody may have written: what lies outside them is an error.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <type_traits>

#include "simulator/macho/Error.h"

namespace sim::macho {

class Bytes {
 public:
  Bytes() = default;
  // `what` names them in errors, and is a literal.
  Bytes(std::span<const char> bytes, const char* what) : bytes_(bytes), what_(what) {}

  std::size_t size() const { return bytes_.size(); }
  const char* data() const { return bytes_.data(); }

  // A number in this machine's order, which is that of the phones.
  template <class T>
  T read(std::uint64_t offset) const {
    static_assert(std::is_arithmetic_v<T>);
    require(offset, sizeof(T));
    T value;
    std::memcpy(&value, bytes_.data() + offset, sizeof value);
    return value;
  }

  // In the order of the network, as fat files have them.
  std::uint32_t readBigEndian(std::uint64_t offset) const {
    return __builtin_bswap32(read<std::uint32_t>(offset));
  }

  Bytes part(std::uint64_t offset, std::uint64_t count, const char* what) const {
    require(offset, count, what);
    return {bytes_.subspan(offset, count), what};
  }
  Bytes from(std::uint64_t offset, const char* what) const {
    require(offset, 0, what);
    return {bytes_.subspan(offset), what};
  }

  // Up to a NUL, which must be there.
  std::string text(std::uint64_t offset) const {
    require(offset, 1);
    const void* end = std::memchr(bytes_.data() + offset, '\0', bytes_.size() - offset);
    if (end == nullptr) throw Error(std::string("is damaged: a name has no end in ") + what_);
    return bytes_.data() + offset;
  }

  // Of a field of that width, which need not have a NUL.
  std::string field(std::uint64_t offset, std::size_t width) const {
    require(offset, width);
    return {bytes_.data() + offset, strnlen(bytes_.data() + offset, width)};
  }

 private:
  void require(std::uint64_t offset, std::uint64_t count) const { require(offset, count, what_); }
  void require(std::uint64_t offset, std::uint64_t count, const char* what) const {
    if (offset > bytes_.size() || count > bytes_.size() - offset)
      throw Error(std::string("is damaged: ") + what + " ends too early");
  }

  std::span<const char> bytes_;
  const char* what_ = "it";
};

}  // namespace sim::macho
