// Numbers from text, alike wherever the simulator reads some: no blanks and no plus sign before
// them, a point whatever the machine's locale, no infinities and no NaN.
#pragma once

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <type_traits>

namespace sim {

template <class Number>
struct NumberAtStart {
  Number value{};
  std::size_t length = 0;     // characters; 0: no number stands there
  bool isOutOfRange = false;  // it is none that the type holds; then the value is 0
};

// The longest number that the text begins with.
template <class Number>
NumberAtStart<Number> numberAtStart(std::string_view text, int base = 10) {
  NumberAtStart<Number> read;
  std::from_chars_result result{};
  const char* end = text.data() + text.size();
  if constexpr (std::is_floating_point_v<Number>) {
    result = std::from_chars(text.data(), end, read.value);
    if (!std::isfinite(read.value)) return {};
  } else {
    result = std::from_chars(text.data(), end, read.value, base);
  }
  read.length = std::size_t(result.ptr - text.data());
  read.isOutOfRange = result.ec == std::errc::result_out_of_range;
  return read;
}

// Takes it away from the text; nothing, and nothing taken, without one that the type holds.
template <class Number>
std::optional<Number> takeNumber(std::string_view& text, int base = 10) {
  const auto read = numberAtStart<Number>(text, base);
  if (read.length == 0 || read.isOutOfRange) return std::nullopt;
  text.remove_prefix(read.length);
  return read.value;
}

// Nothing when the text is not a number from its start to its end.
template <class Number>
std::optional<Number> wholeNumber(std::string_view text, int base = 10) {
  const auto number = takeNumber<Number>(text, base);
  return text.empty() ? number : std::nullopt;
}

}  // namespace sim
