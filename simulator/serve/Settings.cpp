#include "simulator/serve/Settings.h"

#include "objc/Message.h"
#include "simulator/cephei/HBPreferences.h"
#include "simulator/cephei/PreferencesFile.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/Values.h"
#include "simulator/script/Session.h"
#include "simulator/serve/SettingsWording.h"

namespace sim {

using nlohmann::json;
using objc::Object;

namespace {

constexpr const char* domainName = "com.corvane.dozewell2";

// As the host sees them, which must not notice: a domain that it has not opened stays so.
struct Domain {
  Object stored, defaults;  // NSDictionary or nil

  // Empty as long as no host runs, and on a phone without the library.
  Domain() {
    if (Session::current().state != HostState::running || HBPreferences::cls() == nullptr) return;
    if (const Object known = HBPreferences::known(domainName)) {
      stored = HBPreferences::of(known).dictionaryRepresentation();
      defaults = HBPreferences::of(known).defaults();
      return;
    }
    std::string unread;
    const Object content = readPropertyList(preferencesFile(domainName), &unread);
    if (isKindOf(content, "NSDictionary")) stored = content;
  }
};

// What is stored may be of any class: what does not fit the type is shown as it is.
json asJson(Object value, const std::string& type) {
  if (!value) return nullptr;
  if (isKindOf(value, "NSString")) return text(value);
  if (!isKindOf(value, "NSNumber")) return description(value);
  if (type == "bool") return objc::send<bool, "boolValue">(value);
  if (type == "integer") return objc::send<long, "longValue">(value);
  return objc::send<double, "doubleValue">(value);
}

// Before boot there may not even be strings to ask with.
Object find(Object dictionary, const json& setting) {
  if (!dictionary) return nullptr;
  return objc::send<Object, "objectForKey:">(dictionary,
                                             string(setting.at("key").get<std::string>()));
}

json defaultOf(const Domain& domain, const json& setting) {
  return asJson(find(domain.defaults, setting), setting.at("type"));
}

json valueOf(const Domain& domain, const json& setting) {
  const Object value = find(domain.stored, setting);
  return value ? asJson(value, setting.at("type")) : defaultOf(domain, setting);
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
  const Domain domain;
  json all = wording_;
  for (json& setting : all) {
    setting["default"] = defaultOf(domain, setting);
    setting["value"] = valueOf(domain, setting);
  }
  return all;
}

json Settings::values() const {
  const objc::AutoreleasePool pool;
  const Domain domain;
  json all = json::object();
  for (const json& setting : wording_)
    all[setting.at("key").get<std::string>()] = valueOf(domain, setting);
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
