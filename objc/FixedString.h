// Text as a template argument, and text put together at compile time.
#pragma once

#include <cstddef>

namespace objc {

template <std::size_t Size>
struct FixedString {
  char text[Size + 1] = {};

  constexpr FixedString() = default;
  constexpr FixedString(const char (&literal)[Size + 1]) {
    for (std::size_t i = 0; i < Size; ++i) text[i] = literal[i];
  }

  constexpr const char* c_str() const { return text; }
  constexpr std::size_t size() const { return Size; }
  constexpr std::size_t count(char wanted) const {
    std::size_t found = 0;
    for (std::size_t i = 0; i < Size; ++i) found += text[i] == wanted;
    return found;
  }
};

template <std::size_t SizeWithNull>
FixedString(const char (&)[SizeWithNull]) -> FixedString<SizeWithNull - 1>;

// The text where it can be pointed at, once in the program however many places make it. Not the
// template argument itself: compilers align that as if it held numbers.
template <FixedString Text>
inline constexpr auto pooled = Text;

template <std::size_t Left, std::size_t Right>
constexpr FixedString<Left + Right> operator+(const FixedString<Left>& left,
                                              const FixedString<Right>& right) {
  FixedString<Left + Right> joined;
  for (std::size_t i = 0; i < Left; ++i) joined.text[i] = left.text[i];
  for (std::size_t i = 0; i < Right; ++i) joined.text[Left + i] = right.text[i];
  return joined;
}

}  // namespace objc
