#include "simulator/foundation/PropertyList.h"

#include <cstdlib>
#include <vector>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSData.h"
#include "simulator/foundation/NSDate.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/PropertyListNode.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

using objc::Object;

Object objectOf(plist_t node);

Object stringOfNode(plist_t node) {
  std::uint64_t length = 0;
  const char* bytes = plist_get_string_ptr(node, &length);
  return bytes == nullptr ? string("") : string({bytes, length});
}

Object integerOfNode(plist_t node) {
  const PropertyListInteger integer = integerOf(node);
  if (integer.isUnsigned) return numberOf(static_cast<unsigned long>(integer.value));
  return numberOf(long(integer.value));
}

Object dataOfNode(plist_t node) {
  std::uint64_t length = 0;
  const char* bytes = plist_get_data_ptr(node, &length);
  return dataOf(bytes == nullptr ? std::string() : std::string(bytes, length));
}

Object arrayOfNode(plist_t node) {
  std::vector<Object> elements;
  const std::uint32_t size = plist_array_get_size(node);
  for (std::uint32_t i = 0; i < size; ++i) {
    if (const Object element = objectOf(plist_array_get_item(node, i))) elements.push_back(element);
  }
  return array(elements);
}

Object dictionaryOfNode(plist_t node) {
  std::vector<std::pair<Object, Object>> entries;
  plist_dict_iter next = nullptr;
  plist_dict_new_iter(node, &next);
  for (;;) {
    char* key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(node, next, &key, &value);
    if (key == nullptr) break;
    if (const Object object = objectOf(value)) entries.emplace_back(string(key), object);
    std::free(key);
  }
  std::free(next);
  return dictionary(entries);
}

// nil for kinds that no property list of the platform holds.
Object objectOf(plist_t node) {
  std::uint8_t boolean = 0;
  double real = 0;
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
      plist_get_bool_val(node, &boolean);
      return number(boolean != 0);
    case PLIST_UINT:
      return integerOfNode(node);
    case PLIST_REAL:
      plist_get_real_val(node, &real);
      return number(real);
    case PLIST_STRING:
      return stringOfNode(node);
    case PLIST_DATE:
      return date(dateOf(node));
    case PLIST_DATA:
      return dataOfNode(node);
    case PLIST_ARRAY:
      return arrayOfNode(node);
    case PLIST_DICT:
      return dictionaryOfNode(node);
    default:
      return nullptr;
  }
}

// Empty, and a reason in *error, for what no property list can hold.
PropertyListNode nodeOf(Object object, int depth, std::string* error);

PropertyListNode nodeOfNumber(const NSNumber& number) {
  if (number.isBoolean()) return PropertyListNode(plist_new_bool(number.as<bool>()));
  if (number.isReal()) return PropertyListNode(plist_new_real(number.real));
  return makeInteger({number.integer, number.isUnsigned()});
}

// libplist takes texts that end with a zero: the rest would be lost without a word.
PropertyListNode nodeOfText(const std::string& text, std::string* error) {
  if (text.find('\0') == text.npos) return PropertyListNode(plist_new_string(text.c_str()));
  *error = "a text with a zero character cannot be written to a property list";
  return nullptr;
}

PropertyListNode nodeOfArray(const NSArray& array, int depth, std::string* error) {
  PropertyListNode list(plist_new_array());
  for (const auto& element : array.elements) {
    PropertyListNode item = nodeOf(element, depth, error);
    if (!item) return nullptr;
    plist_array_append_item(list.get(), item.release());
  }
  return list;
}

PropertyListNode nodeOfDictionary(const NSDictionary& dictionary, int depth, std::string* error) {
  PropertyListNode list(plist_new_dict());
  for (const KeyEntry& entry : dictionary.table) {
    if (!isA<NSString>(entry.key)) {
      *error = "a key of class " + std::string(object_getClassName(entry.key.get().get())) +
               " is no property list key";
      return nullptr;
    }
    const std::string key = text(entry.key);
    PropertyListNode item = nodeOf(entry.value, depth, error);
    if (!item || !nodeOfText(key, error)) return nullptr;
    plist_dict_set_item(list.get(), key.c_str(), item.release());
  }
  return list;
}

PropertyListNode nodeOf(Object object, int depth, std::string* error) {
  constexpr int deepest = 500;  // as deep as files are read
  if (depth > deepest) {
    *error = "containers are nested too deep for a property list";
    return nullptr;
  }
  if (isA<NSString>(object)) return nodeOfText(text(object), error);
  if (const NSNumber* number = stateOf<NSNumber>(object)) return nodeOfNumber(*number);
  if (const NSDate* date = stateOf<NSDate>(object)) return makeDate(date->reference);
  if (const NSData* data = stateOf<NSData>(object))
    return PropertyListNode(plist_new_data(data->content.data(), data->content.size()));
  if (const NSArray* array = stateOf<NSArray>(object)) return nodeOfArray(*array, depth + 1, error);
  if (const NSDictionary* dictionary = stateOf<NSDictionary>(object))
    return nodeOfDictionary(*dictionary, depth + 1, error);
  *error = description(object) + " is no property list object";
  return nullptr;
}

}  // namespace

Object readPropertyList(const std::filesystem::path& path, std::string* error) {
  const PropertyListNode root = loadNode(path, error);
  if (!root) return nullptr;
  const Object object = objectOf(root.get());
  if (!object) *error = path.string() + ": is no property list";
  return object;
}

bool writePropertyList(Object object, const std::filesystem::path& path, std::string* error) {
  const PropertyListNode root = nodeOf(object, 0, error);
  return root && saveNode(root.get(), path, error);
}

bool writeToPhone(Object self, Object path, bool) {
  std::string problem;
  return writePropertyList(self, Phone::current().file(text(path)), &problem);
}

Object propertyListObject(plist_t node) {
  return objectOf(node);
}

PropertyListNode propertyListNode(Object object, std::string* error) {
  return nodeOf(object, 0, error);
}

Object propertyListCopy(Object object, std::string* error) {
  const PropertyListNode root = nodeOf(object, 0, error);
  return root ? objectOf(root.get()) : nullptr;
}

}  // namespace sim
