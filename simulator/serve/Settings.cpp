#include "simulator/serve/Settings.h"

#include "objc/Message.h"
#include "simulator/cephei/HBPreferences.h"
#include "simulator/foundation/Values.h"
#include "simulator/script/Session.h"
#include "simulator/serve/SettingsWording.h"

namespace sim {

using nlohmann::json;
using objc::Object;

namespace {

constexpr const char* domainName = "com.corvane.dozewell2";

// nil as long as no host runs, and on a phone without the library.
Object domain() {
  const Session& session = Session::current();
  if (session.state != HostState::running || HBPreferences::cls() == nullptr) return nullptr;
  return HBPreferences::preferencesForIdentifier(string(domainName));
}

// What is stored may be of any class: what does not fit the type is shown as it is.
json asJson(Object value, const std::string& type) {
  if (!value) return nullptr;
  if (isKindOf(value, "NSString")) return text(value);
  if (!isKindOf(value, "NSNumber")) return description(value);
  if (type == "bool") return objc::send<bool, "boolValue">(value);
  if (type == "integer") return objc::send<long, "longValue">(value);
  return objc::send<double, "doubleValue">(value);
}

json valueOf(Object preferences, const json& setting) {
  if (!preferences) return nullptr;
  const Object key = string(setting.at("key").get<std::string>());
  return asJson(HBPreferences::of(preferences).objectForKey(key), setting.at("type"));
}

json defaultOf(Object preferences, const json& setting) {
  if (!preferences) return nullptr;
  const Object key = string(setting.at("key").get<std::string>());
  const Object defaults = HBPreferences::of(preferences).defaults();
  return asJson(objc::send<Object, "objectForKey:">(defaults, key), setting.at("type"));
}

std::string literal(const json& value) {
  if (value.is_boolean()) return notation(value.get<bool>());
  if (value.is_string()) return sim::quoted(value.get<std::string>());
  return value.dump();
}

}  // namespace

Settings::Settings() : wording_(json::parse(settingsWording)) {}

json Settings::list() const {
  const objc::AutoreleasePool pool;
  const Object preferences = domain();
  json all = wording_;
  for (json& setting : all) {
    setting["default"] = defaultOf(preferences, setting);
    setting["value"] = valueOf(preferences, setting);
  }
  return all;
}

json Settings::values() const {
  const objc::AutoreleasePool pool;
  const Object preferences = domain();
  json all = json::object();
  for (const json& setting : wording_)
    all[setting.at("key").get<std::string>()] = valueOf(preferences, setting);
  return all;
}

std::vector<std::string> Settings::changedLines() const {
  std::vector<std::string> lines;
  for (const json& setting : list()) {
    if (setting.at("value") != setting.at("default"))
      lines.push_back("set " + setting.at("key").get<std::string>() + ' ' +
                      literal(setting.at("value")));
  }
  return lines;
}

}  // namespace sim
