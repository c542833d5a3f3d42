#include "simulator/cephei/SettingsApp.h"

#include <plist/plist.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <type_traits>

#include "simulator/cephei/PreferencesFile.h"
#include "simulator/foundation/AtomicFile.h"

namespace sim {
namespace {

using List = std::unique_ptr<std::remove_pointer_t<plist_t>, decltype(&plist_free)>;

List parsed(const std::string& content) {
  plist_t list = nullptr;
  if (content.size() <= std::numeric_limits<std::uint32_t>::max())
    plist_from_memory(content.data(), std::uint32_t(content.size()), &list);
  return {list, plist_free};
}

List readDictionary(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return {plist_new_dict(), plist_free};
  const std::string content{std::istreambuf_iterator<char>(stream), {}};
  List list = parsed(content);
  if (list && plist_get_node_type(list.get()) == PLIST_DICT) return list;
  setAsideUnreadable(file, list ? "its root is no dictionary" : "no property list");
  return {plist_new_dict(), plist_free};
}

struct MakeNode {
  plist_t operator()(NoValue) const { return nullptr; }
  plist_t operator()(bool value) const { return plist_new_bool(value); }
  // Negative numbers are stored as the bits of their 64-bit form.
  plist_t operator()(long value) const { return plist_new_uint(std::uint64_t(value)); }
  plist_t operator()(double value) const { return plist_new_real(value); }
  plist_t operator()(const std::string& value) const { return plist_new_string(value.c_str()); }
  plist_t operator()(const std::vector<char>& value) const {
    return plist_new_data(value.data(), value.size());
  }
};

std::string binary(plist_t list) {
  char* bytes = nullptr;
  std::uint32_t length = 0;
  plist_to_bin(list, &bytes, &length);
  const std::unique_ptr<char, decltype(&plist_to_bin_free)> owner(bytes, plist_to_bin_free);
  return bytes == nullptr ? std::string() : std::string(bytes, length);
}

}  // namespace

void writeSetting(const std::filesystem::path& file, const std::string& key,
                  const SettingsValue& value) {
  const List list = readDictionary(file);
  if (plist_t node = std::visit(MakeNode(), value))
    plist_dict_set_item(list.get(), key.c_str(), node);  // takes the node over
  else
    plist_dict_remove_item(list.get(), key.c_str());
  std::string error;
  if (!writeFileAtomically(file, binary(list.get()), &error))
    throw std::runtime_error(file.string() + ": " + error);
}

}  // namespace sim
