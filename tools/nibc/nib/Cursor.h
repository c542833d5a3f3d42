// Takes numbers and runs of bytes from the front of a file.
#pragma once

#include <cstdint>
#include <string_view>

namespace nib {

class Cursor {
 public:
  explicit Cursor(std::string_view bytes) : bytes_(bytes) {}

  std::size_t offset() const { return offset_; }
  bool atEnd() const { return offset_ == bytes_.size(); }

  // All throw FormatError at the end of the file. `what` names the thing for the message.
  std::string_view take(std::size_t count, const char* what);
  std::uint32_t varint(const char* what);
  // Little-endian, 1 to 8 bytes.
  std::uint64_t fixed(unsigned bytes, const char* what);

  // A varint that must be below `limit`, the number of `what`s in the file.
  std::uint32_t index(std::uint32_t limit, const char* what);

 private:
  std::string_view bytes_;
  std::size_t offset_ = 0;
};

}  // namespace nib
