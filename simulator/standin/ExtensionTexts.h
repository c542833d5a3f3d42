// What the loaded extensions call things, read from the extensions themselves.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sim {

// The texts in their constants that can be the name of a class, a selector, a key or a domain:
// letters, digits and _ : . $ up to a NUL.
class ExtensionTexts {
 public:
  static ExtensionTexts& current();

  // Those of a library, which stays loaded. `handle` is what dlopen gave.
  void add(void* handle);
  // Those among bytes which stay where they are.
  void add(std::string_view constants) { constants_.push_back(constants); }
  bool contain(std::string_view name) const;
  // At the end of another is enough: linkers keep "ends" within "weekends", and what lies before a
  // text need not be one.
  bool containEnd(std::string_view name) const;
  // All of them, sorted. Takes a thousand times as long as looking for one.
  std::vector<std::string> all() const;

 private:
  std::vector<std::string_view> constants_;  // by segment
};

}  // namespace sim
