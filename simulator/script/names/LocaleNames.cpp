#include "simulator/script/names/LocaleNames.h"

#include <algorithm>
#include <vector>

#include "simulator/machine/NearestName.h"
#include "simulator/script/names/LocaleCodes.h"

namespace sim {
namespace {

std::vector<std::string> split(std::string_view text, const char* separators) {
  std::vector<std::string> parts;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
    parts.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

bool holds(std::string_view codes, const std::string& code) {
  const auto all = split(codes, " ");
  return std::find(all.begin(), all.end(), code) != all.end();
}

}  // namespace

bool isLocale(std::string_view identifier) {
  const auto parts = split(identifier, "_-");
  auto part = parts.begin();
  if (!holds(languageCodes, *part++)) return false;
  if (part != parts.end() && holds(scriptCodes, *part)) ++part;
  if (part != parts.end() && holds(regionCodes, *part)) ++part;
  if (part != parts.end() && *part == "POSIX") ++part;
  return part == parts.end();
}

std::string nearestLocale(std::string_view identifier) {
  auto known = split(usualLocales, " ");
  const auto languages = split(languageCodes, " ");
  if (identifier.find_first_of("_-") == std::string_view::npos)
    known.insert(known.end(), languages.begin(), languages.end());
  return didYouMean(identifier, known);
}

}  // namespace sim
