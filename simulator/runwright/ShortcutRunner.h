// Whether the shortcut runner, an optional library, is installed, and the user's shortcuts.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <utility>
#include <vector>

#include "simulator/machine/Phone.h"

namespace sim {

class ShortcutRunner {
 public:
  explicit ShortcutRunner(Phone& phone);
  ShortcutRunner(const ShortcutRunner&) = delete;
  ShortcutRunner& operator=(const ShortcutRunner&) = delete;

  // That of Phone::current(), made on first use. It stays installed over a restart of the host.
  static ShortcutRunner& current();

  bool isInstalled() const { return installed_; }
  // False, and nothing happens, once the phone has booted: a running host would not see it.
  bool install();
  // Registers the runner's class if it is installed.
  void hostDidBoot();

  const std::vector<std::string>& shortcuts() const { return shortcuts_; }
  void setShortcuts(std::vector<std::string> names) { shortcuts_ = std::move(names); }

 private:
  nlohmann::json save() const;
  void restore(const nlohmann::json& saved);

  bool booted_ = false;
  bool installed_ = false;
  std::vector<std::string> shortcuts_;
};

}  // namespace sim
