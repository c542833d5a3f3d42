#include "simulator/foundation/CollectionDescription.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSSet.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

bool isPlain(char16_t unit) {
  return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') ||
         (unit >= u'0' && unit <= u'9');
}

std::string escaped(char16_t unit) {
  if (unit == u'"') return "\\\"";
  if (unit == u'\\') return "\\\\";
  if (unit == u'\n') return "\\n";
  if (unit == u'\t') return "\\t";
  if (unit >= 0x20 && unit < 0x7f) return {char(unit)};
  std::array<char, 8> code;
  std::snprintf(code.data(), code.size(), "\\U%04x", unsigned(unit));
  return code.data();
}

// Anything but letters and digits needs quotes.
std::string quotedIfNeeded(const std::string& text) {
  const std::u16string units = unicode::fromUtf8Lossy(text);
  if (!units.empty() && std::all_of(units.begin(), units.end(), isPlain)) return text;
  std::string result = "\"";
  for (const char16_t unit : units) result += escaped(unit);
  return result + '"';
}

std::string blanks(int level) {
  return std::string(std::size_t(4 * level), ' ');
}

std::string describe(Object object, int level);

template <class Elements, class Get>
std::string list(const Elements& elements, int level, Get get) {
  std::string result = "(\n";
  bool first = true;
  for (const auto& element : elements) {
    if (!first) result += ",\n";
    first = false;
    result += blanks(level + 1) + describe(get(element), level + 1);
  }
  if (!first) result += '\n';
  return result + blanks(level) + ')';
}

// In order of the keys when they are all strings.
std::string entries(const NSDictionary& dictionary, int level) {
  std::vector<const KeyEntry*> ordered;
  for (const KeyEntry& entry : dictionary.table) ordered.push_back(&entry);
  const auto isString = [](const KeyEntry* entry) { return isA<NSString>(entry->key); };
  if (std::all_of(ordered.begin(), ordered.end(), isString)) {
    std::sort(ordered.begin(), ordered.end(), [](const KeyEntry* left, const KeyEntry* right) {
      return unitsOf(left->key) < unitsOf(right->key);
    });
  }
  std::string result = "{\n";
  for (const KeyEntry* entry : ordered) {
    result += blanks(level + 1) + describe(entry->key, level + 1) + " = " +
              describe(entry->value, level + 1) + ";\n";
  }
  return result + blanks(level) + '}';
}

// A collection within another begins with its own indentation, behind that of its line: so the
// platform prints it.
std::string describe(Object object, int level) {
  if (const NSArray* array = stateOf<NSArray>(object)) {
    return blanks(level) +
           list(array->elements, level, [](const auto& element) { return Object(element); });
  }
  if (const NSDictionary* dictionary = stateOf<NSDictionary>(object))
    return blanks(level) + entries(*dictionary, level);
  if (const NSSet* set = stateOf<NSSet>(object)) {
    return blanks(level) + '{' +
           list(set->table, level, [](const KeyEntry& entry) { return Object(entry.key); }) + '}';
  }
  return quotedIfNeeded(description(object));
}

}  // namespace

Object collectionDescription(Object collection) {
  return string(describe(collection, 0));
}

}  // namespace sim
