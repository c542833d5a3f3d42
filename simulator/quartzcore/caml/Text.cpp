#include "simulator/quartzcore/caml/Text.h"

#include <cmath>
#include <stdexcept>
#include <string>

#include "simulator/machine/Journal.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/quartzcore/caml/Words.h"

namespace sim::caml {

std::string quotedWord(std::string_view word) {
  constexpr std::size_t most = 40;
  const bool isLong = word.size() > most;
  return sim::quoted(std::string(word.substr(0, most)) + (isLong ? "…" : ""));
}

std::optional<double> number(std::string_view word) {
  constexpr double largest = 1e9;
  if (word.starts_with('+') && !word.starts_with("+-")) word.remove_prefix(1);
  const auto value = wholeNumber<double>(word);
  return value && std::abs(*value) <= largest ? value : std::nullopt;
}

double realOf(std::string_view text) {
  const std::vector<double> values = numbersOf(text);
  if (values.size() != 1)
    throw std::invalid_argument("expected one number, found " + quotedWord(text));
  return values[0];
}

long integerOf(std::string_view text) {
  const double value = realOf(text);
  if (value != std::trunc(value))
    throw std::invalid_argument("expected a whole number, found " + quotedWord(text));
  return long(value);
}

bool flagOf(std::string_view text) {
  const std::string_view word = Words(text).next();
  if (word == "1" || word == "YES" || word == "true") return true;
  if (word == "0" || word == "NO" || word == "false") return false;
  throw std::invalid_argument("expected 0 or 1, found " + quotedWord(text));
}

std::vector<double> numbersOf(std::string_view text) {
  std::vector<double> values;
  Words words(text);
  for (std::string_view word = words.next(); !word.empty(); word = words.next()) {
    const auto value = number(word);
    if (!value) throw std::invalid_argument("expected a number, found " + quotedWord(word));
    values.push_back(*value);
  }
  return values;
}

ColorComponents colorOf(std::string_view text) {
  const std::vector<double> values = numbersOf(text);
  for (const double value : values)
    if (value < 0 || value > 1)
      throw std::invalid_argument("expected colour components from 0 to 1, found " +
                                  quotedWord(text));
  switch (values.size()) {
    case 1:
      return {{values[0], values[0], values[0], 1}, true};
    case 2:
      return {{values[0], values[0], values[0], values[1]}, true};
    case 3:
      return {{values[0], values[1], values[2], 1}, false};
    case 4:
      return {{values[0], values[1], values[2], values[3]}, false};
    default:
      throw std::invalid_argument("expected a colour of 1 to 4 numbers, found " + quotedWord(text));
  }
}

}  // namespace sim::caml
