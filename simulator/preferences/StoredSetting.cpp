#include "simulator/preferences/StoredSetting.h"

#include <string_view>

#include "simulator/cephei/HBPreferences.h"
#include "simulator/cephei/PreferencesFile.h"
#include "simulator/foundation/PropertyListNode.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/preferences/NodeReader.h"

namespace sim {
namespace {

struct NotationVisitor {
  std::string operator()(NoValue) const { return "none"; }
  std::string operator()(bool value) const { return notation(number(value)); }
  std::string operator()(long value) const { return notation(number(value)); }
  std::string operator()(double value) const { return notation(number(value)); }
  std::string operator()(const std::string& value) const { return notation(string(value)); }
  std::string operator()(const std::vector<char>&) const { return "data"; }
};

// Of the notifications of other processes only the preferences library's are known here: that a
// domain has changed.
void postNotification(std::string_view name) {
  constexpr std::string_view ending = "/ReloadPrefs";
  if (name.ends_with(ending))
    HBPreferences::domainDidChangeElsewhere(
        std::string(name.substr(0, name.size() - ending.size())));
}

}  // namespace

SettingsValue storedSetting(const Specifier& specifier) {
  std::string error;
  const PropertyListNode domain = loadNode(preferencesFile(specifier.domain), &error);
  if (domain && plist_get_node_type(domain.get()) == PLIST_DICT)
    if (const plist_t node = plist_dict_get_item(domain.get(), specifier.key.c_str()))
      if (auto value = settingsValueOf(node)) return *std::move(value);
  return specifier.standard;
}

void storeSetting(const Specifier& specifier, const SettingsValue& value) {
  Phone::current().journal.record("user set " + specifier.key + ' ' +
                                  std::visit(NotationVisitor(), value));
  writeSetting(preferencesFile(specifier.domain), specifier.key, value);
  postNotification(specifier.notification);
}

}  // namespace sim
