#include "simulator/machine/NearestName.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace sim {
namespace {

// Whatever the case: it is the letter that is wrong least.
std::size_t commonStart(std::string_view left, std::string_view right) {
  const auto same = [](unsigned char one, unsigned char other) {
    return std::tolower(one) == std::tolower(other);
  };
  const auto end = std::mismatch(left.begin(), left.end(), right.begin(), right.end(), same).first;
  return std::size_t(end - left.begin());
}

std::string nearest(std::string_view name, const std::vector<std::string>& known,
                    std::size_t limit) {
  const std::string* best = nullptr;
  std::size_t shortest = limit;
  for (const std::string& each : known) {
    const std::size_t lengths =
        std::max(each.size(), name.size()) - std::min(each.size(), name.size());
    if (lengths > shortest) continue;  // at least so many letters
    const std::size_t distance = editDistance(name, each);
    const bool isNearer =
        best == nullptr
            ? distance <= limit
            : distance < shortest ||
                  (distance == shortest && commonStart(name, each) > commonStart(name, *best));
    if (!isNearer) continue;
    best = &each;
    shortest = distance;
  }
  return best == nullptr ? "" : "; did you mean \"" + *best + "\"?";
}

}  // namespace

// Three rows of the usual table: a swap looks two rows back.
std::size_t editDistance(std::string_view left, std::string_view right) {
  std::vector<std::size_t> before, above, row(right.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t(0));
  for (std::size_t i = 1; i <= left.size(); ++i) {
    before = std::exchange(above, row);
    row[0] = i;
    for (std::size_t j = 1; j <= right.size(); ++j) {
      const bool same = left[i - 1] == right[j - 1];
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (same ? 0 : 1)});
      const bool swapped =
          i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1];
      if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
    }
  }
  return row.back();
}

std::string didYouMean(std::string_view name, const std::vector<std::string>& known) {
  return nearest(name, known, std::max<std::size_t>(1, name.size() / 3));
}

std::string typoSuggestion(std::string_view name, const std::vector<std::string>& known) {
  if (std::find(known.begin(), known.end(), name) != known.end()) return "";
  return nearest(name, known, std::min<std::size_t>(2, name.size() / 4));
}

}  // namespace sim
