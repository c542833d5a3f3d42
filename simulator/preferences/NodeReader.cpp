#include "simulator/preferences/NodeReader.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

#include "simulator/foundation/PropertyListNode.h"
#include "simulator/preferences/Specifier.h"

namespace sim {
namespace {

struct FreeDeleter {
  void operator()(char* bytes) const { std::free(bytes); }
};
using Bytes = std::unique_ptr<char, FreeDeleter>;

std::string stringOf(plist_t node) {
  char* bytes = nullptr;
  plist_get_string_val(node, &bytes);
  const Bytes owner(bytes);
  return bytes == nullptr ? std::string() : std::string(bytes);
}

std::vector<char> dataOf(plist_t node) {
  char* bytes = nullptr;
  std::uint64_t size = 0;
  plist_get_data_val(node, &bytes, &size);
  const Bytes owner(bytes);
  return {bytes, bytes + size};
}

bool truthOf(plist_t node) {
  std::uint8_t value = 0;
  plist_get_bool_val(node, &value);
  return value != 0;
}

double realOf(plist_t node) {
  double value = 0;
  plist_get_real_val(node, &value);
  return value;
}

// What is longer is no pane that anybody wants to read, and setting it would take minutes.
constexpr std::uint32_t mostElements = 500;
constexpr std::size_t mostBytes = 4000;

}  // namespace

std::optional<SettingsValue> settingsValueOf(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
      return truthOf(node);
    case PLIST_UINT:
      return long(integerOf(node).value);
    case PLIST_REAL:
      return realOf(node);
    case PLIST_STRING:
      return stringOf(node);
    case PLIST_DATA:
      return dataOf(node);
    default:
      return std::nullopt;
  }
}

void NodeReader::fail(const std::string& problem) const {
  const bool isWhole = place_.ends_with(' ');
  throw SpecifierError(place_ + (isWhole ? "" : ": ") + problem);
}

void NodeReader::expect(plist_type type, const char* kind) const {
  if (plist_get_node_type(node_) != type) fail(std::string("expected ") + kind);
}

std::optional<NodeReader> NodeReader::member(const char* key) const {
  expect(PLIST_DICT, "a dictionary");
  const plist_t found = plist_dict_get_item(node_, key);
  if (found == nullptr) return std::nullopt;
  return NodeReader(found, place_ + (place_.ends_with(' ') ? "" : ".") + key);
}

NodeReader NodeReader::required(const char* key) const {
  auto found = member(key);
  if (!found) fail(std::string("there is no ") + key);
  return *std::move(found);
}

std::vector<NodeReader> NodeReader::elements() const {
  expect(PLIST_ARRAY, "an array");
  const std::uint32_t count = plist_array_get_size(node_);
  if (count > mostElements)
    fail("expected at most " + std::to_string(mostElements) + " of them, found " +
         std::to_string(count));
  std::vector<NodeReader> all;
  for (std::uint32_t i = 0; i < count; ++i)
    all.emplace_back(plist_array_get_item(node_, i), place_ + '[' + std::to_string(i) + ']');
  return all;
}

std::string NodeReader::string() const {
  expect(PLIST_STRING, "a string");
  std::string found = stringOf(node_);
  if (found.size() > mostBytes)
    fail("expected at most " + std::to_string(mostBytes) + " bytes of text, found " +
         std::to_string(found.size()));
  return found;
}

SettingsValue NodeReader::value() const {
  auto found = settingsValueOf(node_);
  if (!found) fail("expected a boolean, a number, a string or data");
  return *std::move(found);
}

}  // namespace sim
