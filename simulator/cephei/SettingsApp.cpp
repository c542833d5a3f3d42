#include "simulator/cephei/SettingsApp.h"

#include <stdexcept>

#include "simulator/cephei/PreferencesFile.h"
#include "simulator/foundation/PropertyListNode.h"
#include "simulator/machine/FileContent.h"

namespace sim {
namespace {

PropertyListNode readDictionary(const std::filesystem::path& file) {
  if (isThere(file)) {
    std::string error;
    PropertyListNode content = loadNode(file, &error);
    if (content && plist_get_node_type(content.get()) == PLIST_DICT) return content;
    quarantine(file, content ? file.string() + ": its root is no dictionary" : error);
  }
  return PropertyListNode(plist_new_dict());
}

struct MakeNode {
  PropertyListNode operator()(NoValue) const { return nullptr; }
  PropertyListNode operator()(bool value) const { return PropertyListNode(plist_new_bool(value)); }
  PropertyListNode operator()(long value) const { return makeInteger({value, false}); }
  PropertyListNode operator()(double value) const {
    return PropertyListNode(plist_new_real(value));
  }
  PropertyListNode operator()(const std::string& value) const {
    return PropertyListNode(plist_new_string(value.c_str()));
  }
  PropertyListNode operator()(const std::vector<char>& value) const {
    return PropertyListNode(plist_new_data(value.data(), value.size()));
  }
};

}  // namespace

void writeSetting(const std::filesystem::path& file, const std::string& key,
                  const SettingsValue& value) {
  const PropertyListNode list = readDictionary(file);
  if (PropertyListNode node = std::visit(MakeNode(), value))
    plist_dict_set_item(list.get(), key.c_str(), node.release());
  else
    plist_dict_remove_item(list.get(), key.c_str());
  std::string error;
  if (!saveNode(list.get(), file, &error)) throw std::runtime_error(error);
}

}  // namespace sim
