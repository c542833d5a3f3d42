#include "simulator/foundation/NSStringContent.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSCharacterSet.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/foundation/Values.h"
#include "simulator/foundation/Variadic.h"

namespace sim {
namespace {

using objc::Object;

constexpr const char* literalSearch =
    "compares UTF-16 units; precomposed and decomposed characters differ";

const std::u16string& units(Object self) {
  return NSString::of(self).units;
}

[[noreturn]] void raiseRange(Object self, const char* selector, const std::string& what) {
  raiseException("NSRangeException", methodName(self, selector) + ": " + what +
                                         " out of bounds; string length " +
                                         std::to_string(units(self).size()));
}

// The platform's words for an argument that must not be nil.
const std::u16string& argument(Object self, const char* selector, Object value) {
  if (!value)
    raiseException("NSInvalidArgumentException", methodName(self, selector) + ": nil argument");
  return unitsOf(value);
}

NSRange rangeOfString(Object self, Object wanted) {
  const auto& searched = argument(self, "rangeOfString:", wanted);
  const auto found = units(self).find(searched);
  if (searched.empty() || found == std::u16string::npos) return {NSNotFound, 0};
  return {found, searched.size()};
}

bool containsString(Object self, Object wanted) {
  const auto& searched = argument(self, "containsString:", wanted);
  return !searched.empty() && units(self).find(searched) != std::u16string::npos;
}

bool hasPrefix(Object self, Object prefix) {
  const auto& searched = argument(self, "hasPrefix:", prefix);
  return !searched.empty() && units(self).starts_with(searched);
}

bool hasSuffix(Object self, Object suffix) {
  const auto& searched = argument(self, "hasSuffix:", suffix);
  return !searched.empty() && units(self).ends_with(searched);
}

Object substringFromIndex(Object self, unsigned long index) {
  if (index > units(self).size())
    raiseRange(self, "substringFromIndex:", "Index " + std::to_string(index));
  return stringOf(units(self).substr(index));
}

Object substringToIndex(Object self, unsigned long index) {
  if (index > units(self).size())
    raiseRange(self, "substringToIndex:", "Index " + std::to_string(index));
  return stringOf(units(self).substr(0, index));
}

Object substringWithRange(Object self, NSRange range) {
  const unsigned long size = units(self).size();
  if (range.location > size || range.length > size - range.location) {
    raiseRange(
        self, "substringWithRange:",
        "Range {" + std::to_string(range.location) + ", " + std::to_string(range.length) + "}");
  }
  return stringOf(units(self).substr(range.location, range.length));
}

Object stringByAppendingString(Object self, Object other) {
  return stringOf(units(self) + argument(self, "stringByAppendingString:", other));
}

id stringByAppendingFormat(id self, SEL, id format, std::va_list arguments) {
  std::u16string joined = units(Object(self)) + formatted(Object(format), arguments);
  return stringOf(std::move(joined)).get();
}

Object replaceOccurrences(Object self, Object target, Object replacement) {
  constexpr const char* selector = "stringByReplacingOccurrencesOfString:withString:";
  const auto& wanted = argument(self, selector, target);
  const auto& put = argument(self, selector, replacement);
  const auto& whole = units(self);
  std::u16string result;
  std::size_t from = 0;
  while (!wanted.empty()) {
    const auto found = whole.find(wanted, from);
    if (found == std::u16string::npos) break;
    result.append(whole, from, found - from).append(put);
    from = found + wanted.size();
  }
  return stringOf(result.append(whole, from));
}

Object componentsSeparatedByString(Object self, Object separator) {
  const auto& between = argument(self, "componentsSeparatedByString:", separator);
  const auto& whole = units(self);
  std::vector<Object> parts;
  std::size_t from = 0;
  while (!between.empty()) {
    const auto found = whole.find(between, from);
    if (found == std::u16string::npos) break;
    parts.push_back(stringOf(whole.substr(from, found - from)));
    from = found + between.size();
  }
  parts.push_back(stringOf(whole.substr(from)));
  return array(parts);
}

Object trimmed(Object self, Object characters) {
  const NSCharacterSet* set = stateOf<NSCharacterSet>(characters);
  const auto& whole = units(self);
  if (set == nullptr) return self;
  const auto stays = [set](char16_t unit) { return !set->contains(unit); };
  const auto first = std::find_if(whole.begin(), whole.end(), stays);
  const auto last = std::find_if(whole.rbegin(), std::make_reverse_iterator(first), stays);
  return stringOf(std::u16string(first, last.base()));
}

Object uppercaseString(Object self) {
  return stringOf(unicode::upperCase(units(self)));
}

Object lowercaseString(Object self) {
  return stringOf(unicode::lowerCase(units(self)));
}

}  // namespace

void addContentMethods(StandIn<NSString>& standIn) {
  constexpr const char* simpleCase = "one character for one: ß stays as it is";
  standIn.partial<"rangeOfString:", &rangeOfString>(literalSearch)
      .partial<"containsString:", &containsString>(literalSearch)
      .partial<"hasPrefix:", &hasPrefix>(literalSearch)
      .partial<"hasSuffix:", &hasSuffix>(literalSearch)
      .method<"substringFromIndex:", &substringFromIndex>()
      .method<"substringToIndex:", &substringToIndex>()
      .method<"substringWithRange:", &substringWithRange>()
      .method<"stringByAppendingString:", &stringByAppendingString>()
      .partial<"stringByReplacingOccurrencesOfString:withString:", &replaceOccurrences>(
          literalSearch)
      .partial<"componentsSeparatedByString:", &componentsSeparatedByString>(literalSearch)
      .partial<"stringByTrimmingCharactersInSet:", &trimmed>("UTF-16 units")
      .partial<"uppercaseString", &uppercaseString>(simpleCase)
      .partial<"lowercaseString", &lowercaseString>(simpleCase);
  addVariadic<&stringByAppendingFormat>({NSString::cls(), '-', "stringByAppendingFormat:", "@@:@"});
}

}  // namespace sim
