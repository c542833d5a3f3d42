// Words between blanks and commas.
#pragma once

#include <algorithm>
#include <string_view>

namespace sim::caml {

class Words {
 public:
  explicit Words(std::string_view text) : rest_(text) {}

  // Empty at the end.
  std::string_view next() {
    constexpr std::string_view separators = " \t\r\n,";
    rest_.remove_prefix(std::min(rest_.find_first_not_of(separators), rest_.size()));
    const std::string_view word = rest_.substr(0, rest_.find_first_of(separators));
    rest_.remove_prefix(word.size());
    return word;
  }

 private:
  std::string_view rest_;
};

}  // namespace sim::caml
