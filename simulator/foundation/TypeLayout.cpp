#include "simulator/foundation/TypeLayout.h"

#include <algorithm>

namespace sim {
namespace {

constexpr std::string_view qualifiers = "rnNoORVA";

class Reader {
 public:
  explicit Reader(std::string_view encoding) : rest_(encoding) {}

  std::string_view rest() const { return rest_; }

  TypeLayout type() {
    while (!rest_.empty() && qualifiers.find(rest_.front()) != rest_.npos) rest_.remove_prefix(1);
    if (rest_.empty()) return {};
    const char letter = rest_.front();
    rest_.remove_prefix(1);
    if (letter == '{') return structure();
    if (letter == '@' && !rest_.empty() && rest_.front() == '?') rest_.remove_prefix(1);
    if (letter == '@' && !rest_.empty() && rest_.front() == '"') skipClassName();
    if (letter == '^') {
      type();  // what it points at does not matter
      return {sizeof(void*), alignof(void*), "^"};
    }
    const std::size_t size = sizeOf(letter);
    return {size, std::max<std::size_t>(size, 1), std::string(1, letter)};
  }

 private:
  TypeLayout structure() {
    rest_.remove_prefix(std::min(rest_.find('=') + 1, rest_.size()));
    TypeLayout whole;
    while (!rest_.empty() && rest_.front() != '}') {
      const TypeLayout member = type();
      if (member.size == 0) return {};
      whole.size = roundedUp(whole.size, member.alignment) + member.size;
      whole.alignment = std::max(whole.alignment, member.alignment);
      whole.scalars += member.scalars;
    }
    if (rest_.empty()) return {};
    rest_.remove_prefix(1);
    whole.size = roundedUp(whole.size, whole.alignment);
    return whole;
  }

  void skipClassName() {
    rest_.remove_prefix(1);
    rest_.remove_prefix(std::min(rest_.find('"') + 1, rest_.size()));
  }

  static std::size_t roundedUp(std::size_t size, std::size_t alignment) {
    return (size + alignment - 1) / alignment * alignment;
  }

  static std::size_t sizeOf(char letter) {
    switch (letter) {
      case 'c':
      case 'C':
      case 'B':
        return 1;
      case 's':
      case 'S':
        return 2;
      case 'i':
      case 'I':
      case 'f':
        return 4;
      case 'q':
      case 'Q':
      case 'l':
      case 'L':
      case 'd':
      case '@':
      case '#':
      case ':':
      case '*':
        return 8;
      default:
        return 0;
    }
  }

  std::string_view rest_;
};

}  // namespace

TypeLayout layoutOf(std::string_view encoding) {
  return Reader(encoding).type();
}

std::string_view firstType(std::string_view encoding) {
  Reader reader(encoding);
  reader.type();
  return encoding.substr(0, encoding.size() - reader.rest().size());
}

char typeLetter(std::string_view encoding) {
  const auto first = encoding.find_first_not_of(qualifiers);
  return first == encoding.npos ? '\0' : encoding[first];
}

}  // namespace sim
