#include "simulator/script/words/Wildcard.h"

namespace sim {

// Greedy with one point of return, so that no pattern takes exponential time.
bool matchesWildcard(std::string_view text, std::string_view pattern) {
  constexpr auto none = std::string_view::npos;
  std::size_t at = 0, wanted = 0, star = none, resumeAt = 0;
  while (at < text.size()) {
    if (wanted < pattern.size() && pattern[wanted] == '*') {
      star = wanted++;
      resumeAt = at;
    } else if (wanted < pattern.size() && pattern[wanted] == text[at]) {
      ++wanted, ++at;
    } else if (star != none) {
      wanted = star + 1;
      at = ++resumeAt;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', wanted) == none;
}

}  // namespace sim
