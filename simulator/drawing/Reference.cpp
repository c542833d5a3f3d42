#include "simulator/drawing/Reference.h"

#include <algorithm>

namespace sim {
namespace {

// The first line, without its indentation, which goes from the text.
std::string takeLine(std::string_view& text) {
  if (text.empty()) return "the end";
  std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  constexpr std::size_t enough = 200;  // of an element that embeds something
  std::string taken(line.substr(0, enough));
  if (line.size() > enough) taken += "…";
  return taken;
}

}  // namespace

std::optional<std::string> firstDifference(std::string_view expected, std::string_view found) {
  if (expected == found) return std::nullopt;
  std::size_t line = 1;
  while (!expected.empty() && !found.empty()) {
    const std::string_view one = expected.substr(0, expected.find('\n'));
    const std::string_view other = found.substr(0, found.find('\n'));
    if (one != other) break;
    expected.remove_prefix(std::min(one.size() + 1, expected.size()));
    found.remove_prefix(std::min(other.size() + 1, found.size()));
    ++line;
  }
  const std::string wanted = takeLine(expected);
  return "line " + std::to_string(line) + ": expected " + wanted + ", found " + takeLine(found);
}

}  // namespace sim
