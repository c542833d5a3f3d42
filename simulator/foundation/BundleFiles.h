// The files of a bundle folder: which one a name stands for, in the user's language.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

class BundleFiles {
 public:
  // `developmentRegion` is the bundle's own language ("en"), or empty.
  BundleFiles(std::filesystem::path folder, std::string locale, std::string developmentRegion);

  const std::string& locale() const { return locale_; }
  // Names of the .lproj folders without "Base", in alphabetical order.
  std::vector<std::string> localizations() const;
  // The one that fits the locale best; empty when there is none at all.
  std::string preferredLocalization() const;
  // Relative to the folder. A file beside the .lproj folders hides those inside them.
  std::optional<std::filesystem::path> find(std::string_view name, std::string_view type) const;

 private:
  // Looked up once: as on the platform, languages that are added later do not count.
  const std::vector<std::string>& searchList() const;
  std::optional<std::filesystem::path> findIn(const std::filesystem::path& subfolder,
                                              std::string_view name, std::string_view type) const;

  std::filesystem::path folder_;
  std::string locale_;
  std::string developmentRegion_;
  mutable std::optional<std::vector<std::string>> searchList_;
};

}  // namespace sim
