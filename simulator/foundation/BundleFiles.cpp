#include "simulator/foundation/BundleFiles.h"

#include <algorithm>
#include <cctype>
#include <system_error>

#include "simulator/foundation/NSLocale.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

// "pt_BR" and "pt-br" name the same language.
std::string canonical(std::string_view language) {
  std::string result;
  for (const char letter : language)
    result += letter == '_' ? '-' : char(std::tolower(static_cast<unsigned char>(letter)));
  return result;
}

// Chinese is told apart by script, which a locale leaves to its region.
std::string scriptOf(const LocaleParts& parts) {
  if (parts.language != "zh" || !parts.script.empty()) return parts.script;
  const bool traditional = parts.region == "TW" || parts.region == "HK" || parts.region == "MO";
  return traditional ? "Hant" : "Hans";
}

// From the most exact name to the language alone.
std::vector<std::string> namesFor(const std::string& locale) {
  const LocaleParts parts = partsOf(locale);
  const std::string script = scriptOf(parts);
  std::vector<std::string> names;
  if (!script.empty() && !parts.region.empty())
    names.push_back(parts.language + '-' + script + '-' + parts.region);
  if (!parts.region.empty()) names.push_back(parts.language + '-' + parts.region);
  if (!script.empty()) names.push_back(parts.language + '-' + script);
  names.push_back(parts.language);
  if (parts.language == "nb") names.push_back("no");
  return names;
}

// Empty when none is available.
std::string firstOf(const std::vector<std::string>& names,
                    const std::vector<std::string>& available) {
  for (const std::string& name : names) {
    for (const std::string& candidate : available)
      if (canonical(candidate) == canonical(name)) return candidate;
  }
  return "";
}

// "pt-BR" for pt_PT, when there is nothing nearer.
std::string inAnotherRegion(const std::string& locale, const std::vector<std::string>& available) {
  const LocaleParts wanted = partsOf(locale);
  for (const std::string& candidate : available) {
    const LocaleParts parts = partsOf(candidate);
    if (parts.language == wanted.language && scriptOf(parts) == scriptOf(wanted)) return candidate;
  }
  return "";
}

}  // namespace

BundleFiles::BundleFiles(std::filesystem::path folder, std::string locale,
                         std::string developmentRegion)
    : folder_(std::move(folder)),
      locale_(std::move(locale)),
      developmentRegion_(std::move(developmentRegion)) {}

std::vector<std::string> BundleFiles::localizations() const {
  std::vector<std::string> names;
  std::error_code problem;
  for (const auto& entry : std::filesystem::directory_iterator(folder_, problem)) {
    const std::filesystem::path& path = entry.path();
    if (path.extension() == ".lproj" && path.stem() != "Base") names.push_back(path.stem());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string BundleFiles::preferredLocalization() const {
  const std::vector<std::string> available = localizations();
  std::string best = firstOf(namesFor(locale_), available);
  if (best.empty()) best = inAnotherRegion(locale_, available);
  if (best.empty()) best = firstOf({developmentRegion_, "en-US", "en"}, available);
  return best.empty() && !available.empty() ? available.front() : best;
}

const std::vector<std::string>& BundleFiles::searchList() const {
  if (searchList_) return *searchList_;
  std::vector<std::string>& folders = searchList_.emplace();
  const std::string preferred = preferredLocalization();
  if (!preferred.empty()) folders.push_back(preferred);
  folders.push_back("Base");
  if (!developmentRegion_.empty()) folders.push_back(developmentRegion_);
  return folders;
}

std::optional<std::filesystem::path> BundleFiles::find(std::string_view name,
                                                       std::string_view type) const {
  if (auto found = findIn("", name, type)) return found;
  for (const std::string& language : searchList())
    if (auto found = findIn(language + ".lproj", name, type)) return found;
  return std::nullopt;
}

std::optional<std::filesystem::path> BundleFiles::findIn(const std::filesystem::path& subfolder,
                                                         std::string_view name,
                                                         std::string_view type) const {
  // The variant for a phone goes first.
  for (const std::string_view device : {"~iphone", ""}) {
    std::string file = std::string(name) + std::string(device);
    if (!type.empty()) file += (type.starts_with('.') ? "" : ".") + std::string(type);
    const auto inside = pathWithin((subfolder / file).string());
    std::error_code problem;
    if (std::filesystem::exists(folder_ / inside, problem)) return inside;
  }
  return std::nullopt;
}

}  // namespace sim
