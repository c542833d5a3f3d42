#include "simulator/runwright/ShortcutRunner.h"

#include <nlohmann/json.hpp>

#include "simulator/machine/Phone.h"
#include "simulator/runwright/RunwrightManager.h"

namespace sim {

ShortcutRunner::ShortcutRunner(Phone& phone) {
  phone.survives("shortcuts", {[this] { return save(); },
                               [this](const nlohmann::json& saved) { restore(saved); }});
}

ShortcutRunner& ShortcutRunner::current() {
  return Phone::current().state<ShortcutRunner>();
}

bool ShortcutRunner::install() {
  installed_ = installed_ || !booted_;
  return installed_;
}

void ShortcutRunner::hostDidBoot() {
  booted_ = true;
  if (installed_ && RunwrightManager::cls() == nullptr) RunwrightManager::registerClass();
}

nlohmann::json ShortcutRunner::save() const {
  return {{"installed", installed_}, {"shortcuts", shortcuts_}};
}

void ShortcutRunner::restore(const nlohmann::json& saved) {
  saved.at("installed").get_to(installed_);
  saved.at("shortcuts").get_to(shortcuts_);
  // A restarted host has its frameworks before anything is given back.
  if (booted_) hostDidBoot();
}

}  // namespace sim
