#include "simulator/foundation/PropertyListNode.h"

#include <bit>
#include <cstdlib>

#include "simulator/foundation/AtomicFile.h"
#include "simulator/foundation/PropertyListBounds.h"
#include "simulator/machine/FileContent.h"

namespace sim {
namespace {

// What libplist allocates for its callers.
struct Allocated {
  char* bytes = nullptr;
  std::uint32_t size = 0;
  Allocated() = default;
  Allocated(const Allocated&) = delete;
  Allocated& operator=(const Allocated&) = delete;
  ~Allocated() { std::free(bytes); }
};

std::string bigEndian(std::uint64_t value) {
  std::string bytes;
  for (int shift = 56; shift >= 0; shift -= 8) bytes += char(value >> shift);
  return bytes;
}

std::uint64_t fromBigEndian(std::string_view bytes) {
  std::uint64_t value = 0;
  for (const char byte : bytes) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

// A binary property list of one object is a magic number, the object, its offset and a trailer.
constexpr std::string_view magic = "bplist00";

PropertyListNode nodeFromBinary(const std::string& object) {
  std::string list = std::string(magic) + object;
  const std::size_t offsetTable = list.size();
  list += char(magic.size());
  list += std::string(6, '\0') + char(1) + char(1);  // one byte per offset and reference
  list += bigEndian(1) + bigEndian(0) + bigEndian(offsetTable);
  plist_t node = nullptr;
  plist_from_bin(list.data(), std::uint32_t(list.size()), &node);
  return PropertyListNode(node);
}

// The marker byte and what follows it.
std::string binaryOf(plist_t node) {
  Allocated list;
  plist_to_bin(node, &list.bytes, &list.size);
  if (list.bytes == nullptr) return {};
  const int power = list.bytes[magic.size()] & 0xf;
  return std::string(list.bytes + magic.size(), 1 + (std::size_t(1) << power));
}

}  // namespace

PropertyListNode loadNode(const std::filesystem::path& path, std::string* error) {
  const auto bytes = fileContent(path);
  if (!bytes) {
    *error = path.string() + ": cannot be read";
    return nullptr;
  }
  plist_t node = nullptr;
  const bool bounded = isWithinBounds(*bytes);
  if (bounded) plist_from_memory(bytes->data(), std::uint32_t(bytes->size()), &node);
  if (node == nullptr) {
    *error = path.string() +
             (bounded ? ": is no property list"
                      : ": is nested too deep, too large, or has a zero character in a key");
  }
  return PropertyListNode(node);
}

bool saveNode(plist_t node, const std::filesystem::path& path, std::string* error) {
  Allocated list;
  plist_to_bin(node, &list.bytes, &list.size);
  if (list.bytes == nullptr) {
    *error = path.string() + ": cannot be put in the binary format";
    return false;
  }
  return writeFileAtomically(path, {list.bytes, list.size}, error);
}

PropertyListInteger integerOf(plist_t node) {
  std::uint64_t bits = 0;
  plist_get_uint_val(node, &bits);
  const auto value = static_cast<std::int64_t>(bits);
  if (value >= 0) return {value, false};
  // Sixteen bytes say that the number is positive after all.
  return {value, binaryOf(node).starts_with('\x14')};
}

double dateOf(plist_t node) {
  const std::string binary = binaryOf(node);
  if (binary.size() != 9) return 0;
  return std::bit_cast<double>(fromBigEndian(std::string_view(binary).substr(1)));
}

PropertyListNode makeInteger(PropertyListInteger integer) {
  const auto bits = static_cast<std::uint64_t>(integer.value);
  if (!integer.isUnsigned || integer.value >= 0) return PropertyListNode(plist_new_uint(bits));
  return nodeFromBinary('\x14' + bigEndian(0) + bigEndian(bits));
}

PropertyListNode makeDate(double secondsSinceReferenceDate) {
  return nodeFromBinary('\x33' +
                        bigEndian(std::bit_cast<std::uint64_t>(secondsSinceReferenceDate)));
}

}  // namespace sim
