#include "simulator/foundation/TypeEncoding.h"

#include <algorithm>
#include <stdexcept>

namespace sim {
namespace {

constexpr std::string_view integers = "cCsSiIlLqQ";
constexpr std::string_view qualifiers = "rnNoORVA";
constexpr int deepestNesting = 16;

// Reads one encoding from left to right.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool atEnd() {
    skipInformation();
    return at_ == text_.size();
  }

  TypeEncoding type(int depth = 0) {
    skipInformation();
    if (depth > deepestNesting) fail("is nested too deeply");
    if (at_ == text_.size()) fail("ends too early");
    const char letter = text_[at_++];
    if (letter == '{') return structure(depth);
    if (letter == '^') return {'^', "^" + pointee(depth), {}};
    if (letter == '@') return object();
    if (integers.find(letter) != none || std::string_view("fdBv#:*?").find(letter) != none)
      return {letter, std::string(1, letter), {}};
    fail(std::string("has a type that no method passes by value: ") + letter);
  }

 private:
  static constexpr std::size_t none = std::string_view::npos;

  [[noreturn]] void fail(const std::string& why) const {
    throw std::invalid_argument("the encoding \"" + std::string(text_) + "\" " + why);
  }

  // Frame offsets and const, in, out, … ; member names in structures.
  void skipInformation() {
    while (at_ < text_.size()) {
      if (text_[at_] == '"')
        skipName();
      else if (std::string_view("0123456789+-").find(text_[at_]) != none ||
               qualifiers.find(text_[at_]) != none)
        ++at_;
      else
        return;
    }
  }

  void skipName() {
    const std::size_t close = text_.find('"', at_ + 1);
    if (close == none) fail("has an open quote");
    at_ = close + 1;
  }

  TypeEncoding object() {
    if (at_ < text_.size() && text_[at_] == '?') {
      ++at_;
      return {'@', "@?", {}};
    }
    if (at_ < text_.size() && text_[at_] == '"') skipName();
    return {'@', "@", {}};
  }

  TypeEncoding structure(int depth) {
    const std::size_t name = at_;
    const std::size_t equals = text_.find_first_of("={}", at_);
    if (equals == none || text_[equals] != '=') fail("has a structure without members");
    at_ = equals + 1;
    TypeEncoding made{'{', "{" + std::string(text_.substr(name, equals - name)) + "=", {}};
    for (;;) {
      skipInformation();
      if (at_ < text_.size() && text_[at_] == '}') break;
      made.members.push_back(type(depth + 1));
      made.text += made.members.back().text;
    }
    ++at_;
    if (made.members.empty()) fail("has a structure without members");
    made.text += '}';
    return made;
  }

  // Nothing is passed through a pointer by value, so its target may be anything.
  std::string pointee(int depth) {
    skipInformation();
    const std::string_view brackets = "{([";
    if (at_ < text_.size() && brackets.find(text_[at_]) != none) return bracketed();
    return type(depth + 1).text;
  }

  // As it stands: an opaque structure has no members to read.
  std::string bracketed() {
    const std::size_t start = at_;
    int depth = 0;
    do {
      if (at_ == text_.size()) fail("ends too early");
      const char letter = text_[at_++];
      if (letter == '{' || letter == '(' || letter == '[') ++depth;
      if (letter == '}' || letter == ')' || letter == ']') --depth;
    } while (depth > 0);
    return std::string(text_.substr(start, at_ - start));
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

std::vector<TypeEncoding> parseAll(std::string_view text) {
  std::vector<TypeEncoding> types;
  for (Reader reader(text); !reader.atEnd();) types.push_back(reader.type());
  if (types.empty()) throw std::invalid_argument("the encoding is empty");
  return types;
}

std::size_t roundedUp(std::size_t size, std::size_t alignment) {
  return (size + alignment - 1) / alignment * alignment;
}

std::size_t scalarSize(char kind) {
  switch (kind) {
    case 'v':
      return 0;
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
    default:
      return 8;
  }
}

}  // namespace

bool TypeEncoding::isInteger() const {
  return integers.find(kind) != std::string_view::npos;
}

bool TypeEncoding::isFloating() const {
  return kind == 'f' || kind == 'd';
}

std::size_t TypeEncoding::alignment() const {
  if (kind != '{') return std::max<std::size_t>(scalarSize(kind), 1);
  std::size_t most = 1;
  for (const TypeEncoding& member : members) most = std::max(most, member.alignment());
  return most;
}

std::size_t TypeEncoding::size() const {
  if (kind != '{') return scalarSize(kind);
  return roundedUp(offsetOf(members.size() - 1) + members.back().size(), alignment());
}

std::size_t TypeEncoding::offsetOf(std::size_t wanted) const {
  std::size_t offset = 0;
  for (std::size_t before = 0; before < wanted; ++before)
    offset = roundedUp(offset, members[before].alignment()) + members[before].size();
  return roundedUp(offset, members[wanted].alignment());
}

std::string TypeEncoding::scalars() const {
  if (kind != '{') return std::string(1, kind);
  std::string all;
  for (const TypeEncoding& member : members) all += member.scalars();
  return all;
}

TypeEncoding parseType(std::string_view text) {
  auto types = parseAll(text);
  if (types.size() != 1)
    throw std::invalid_argument("the encoding \"" + std::string(text) + "\" is not one type");
  return std::move(types.front());
}

std::optional<TypeEncoding> firstType(std::string_view text) {
  try {
    return Reader(text).type();
  } catch (const std::invalid_argument&) {
    return std::nullopt;
  }
}

char typeLetter(std::string_view text) {
  const auto first = text.find_first_not_of(qualifiers);
  return first == text.npos ? '\0' : text[first];
}

Signature parseFunctionTypes(std::string_view text) {
  auto types = parseAll(text);
  return {types.front(), {types.begin() + 1, types.end()}};
}

Signature parseMethodTypes(std::string_view text) {
  Signature signature = parseFunctionTypes(text);
  auto& arguments = signature.arguments;
  if (arguments.size() < 2 || !arguments[0].isObject() || arguments[1].kind != ':')
    throw std::invalid_argument("the encoding \"" + std::string(text) + "\" is not a method's");
  arguments.erase(arguments.begin(), arguments.begin() + 2);
  return signature;
}

std::string normalizedTypes(std::string_view text) {
  std::string joined;
  for (const TypeEncoding& type : parseAll(text)) joined += type.text;
  return joined;
}

}  // namespace sim
