#include "tests/model/Agenda.h"

#include <algorithm>
#include <utility>

namespace model {

std::optional<Entry> Agenda::takeDue(Nanoseconds until) {
  const auto first =
      std::min_element(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
        return std::pair(a.due, a.arrival) < std::pair(b.due, b.arrival);
      });
  if (first == entries_.end() || first->due > until) return std::nullopt;
  const Entry entry = *first;
  entries_.erase(first);
  return entry;
}

std::vector<Nanoseconds> Agenda::dueTimes() const {
  std::vector<Nanoseconds> times;
  for (const Entry& entry : entries_) times.push_back(entry.due);
  std::sort(times.begin(), times.end());
  times.erase(std::unique(times.begin(), times.end()), times.end());
  return times;
}

}  // namespace model
