#include "simulator/foundation/PropertyListBounds.h"

#include <cstdint>
#include <vector>

namespace sim {
namespace {

constexpr int deepest = 500;                  // containers within containers
constexpr std::uint64_t largest = 2'000'000;  // objects, each counted where it is referred to
constexpr std::string_view magic = "bplist00";
constexpr std::size_t trailerSize = 32;

// The containers of a binary property list as a graph. Bytes outside the list read as zero.
class BinaryList {
 public:
  explicit BinaryList(std::string_view bytes) : bytes_(bytes) {
    const std::size_t trailer = bytes.size() - trailerSize;
    offsetSize_ = number(trailer + 6, 1);
    referenceSize_ = number(trailer + 7, 1);
    count_ = number(trailer + 8, 8);
    top_ = number(trailer + 16, 8);
    offsetTable_ = number(trailer + 24, 8);
  }

  bool isBounded() {
    // More objects than bytes, or numbers of more than 64 bits: the parser refuses these.
    if (count_ > bytes_.size() || offsetSize_ > 8 || referenceSize_ > 8) return true;
    weights_.assign(count_, 0);
    return weigh(top_, 0) <= largest;
  }

 private:
  // How many objects there are below this one, itself included; more than `largest` when the list
  // is out of bounds, goes round in circles or has a key with a zero.
  std::uint64_t weigh(std::uint64_t object, int depth) {
    constexpr std::uint64_t tooMuch = largest + 1;
    if (object >= count_) return 1;
    if (depth > deepest) return tooMuch;
    if (weights_[object] != 0) return weights_[object];
    weights_[object] = tooMuch;  // should it be met again on the way down
    std::uint64_t weight = 1;
    std::size_t at = number(offsetTable_ + object * offsetSize_, offsetSize_);
    const bool isDictionary = number(at, 1) >> 4 == 0xd;
    const std::uint64_t references = takeReferences(at);
    for (std::uint64_t i = 0; isDictionary && i < references / 2; ++i)
      if (hasZero(number(at + i * referenceSize_, referenceSize_))) return tooMuch;
    for (std::uint64_t i = 0; i < references && weight <= largest; ++i)
      weight += weigh(number(at + i * referenceSize_, referenceSize_), depth + 1);
    return weights_[object] = weight;
  }

  // How many references the object at `at` holds; `at` moves to the first.
  std::uint64_t takeReferences(std::size_t& at) const {
    const std::uint64_t marker = number(at++, 1);
    const std::uint64_t kind = marker >> 4;
    if (kind != 0xa && kind != 0xc && kind != 0xd) return 0;
    const std::uint64_t size = takeSize(marker, at);
    return kind == 0xd ? 2 * size : size;
  }

  // The count in a marker, or in the number behind it; 0 when the parser will refuse it.
  std::uint64_t takeSize(std::uint64_t marker, std::size_t& at) const {
    std::uint64_t size = marker & 0xf;
    if (size == 0xf) {
      const std::size_t width = std::size_t(1) << (number(at++, 1) & 3);
      size = number(at, width);
      at += width;
    }
    return size > bytes_.size() ? 0 : size;
  }

  // Whether an object is a text with a zero character.
  bool hasZero(std::uint64_t object) const {
    if (object >= count_) return false;
    std::size_t at = number(offsetTable_ + object * offsetSize_, offsetSize_);
    const std::uint64_t marker = number(at++, 1);
    const std::size_t width = marker >> 4 == 0x5 ? 1 : marker >> 4 == 0x6 ? 2 : 0;
    const std::uint64_t size = width == 0 ? 0 : takeSize(marker, at);
    for (std::uint64_t i = 0; i < size; ++i)
      if (number(at + i * width, width) == 0) return true;
    return false;
  }

  std::uint64_t number(std::size_t at, std::size_t width) const {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
      const bool inside = at < bytes_.size() && i < bytes_.size() - at;
      value = value << 8 | (inside ? static_cast<unsigned char>(bytes_[at + i]) : 0);
    }
    return value;
  }

  std::string_view bytes_;
  std::size_t offsetSize_;
  std::size_t referenceSize_;
  std::uint64_t count_;
  std::uint64_t top_;
  std::uint64_t offsetTable_;
  std::vector<std::uint64_t> weights_;  // 0: not yet known
};

bool isXmlBounded(std::string_view bytes) {
  int depth = 0;
  for (std::size_t at = bytes.find('<'); at != bytes.npos; at = bytes.find('<', at + 1)) {
    const std::string_view rest = bytes.substr(at + 1, 6);
    if (rest.starts_with("array") || rest.starts_with("dict")) ++depth;
    if (rest.starts_with("/array") || rest.starts_with("/dict")) --depth;
    if (depth > deepest) return false;
  }
  return true;
}

}  // namespace

bool isWithinBounds(std::string_view bytes) {
  if (bytes.size() > UINT32_MAX) return false;
  if (!bytes.starts_with(magic)) return bytes.find('\0') == bytes.npos && isXmlBounded(bytes);
  if (bytes.size() < magic.size() + trailerSize) return true;
  return BinaryList(bytes).isBounded();
}

}  // namespace sim
