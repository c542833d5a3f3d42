#include "simulator/foundation/NSCharacterSet.h"

#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

bool isNewline(char16_t unit) {
  return (unit >= 0x0A && unit <= 0x0D) || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

Object setOf(std::u16string members, bool inverted = false) {
  auto made = NSCharacterSet::make();
  NSCharacterSet::of(made.get()).members = std::move(members);
  NSCharacterSet::of(made.get()).inverted = inverted;
  return autorelease(std::move(made));
}

template <class Test>
Object setWhere(Test test) {
  std::u16string members;
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    if (test(char16_t(unit))) members += char16_t(unit);
  return setOf(std::move(members));
}

Object whitespace() {
  return setWhere([](char16_t unit) { return unicode::isWhitespace(unit) && !isNewline(unit); });
}
Object newlines() {
  return setWhere(isNewline);
}
Object whitespaceAndNewlines() {
  return setWhere(unicode::isWhitespace);
}
Object charactersInString(Object text) {
  return setOf(unitsOf(text));
}

}  // namespace

bool NSCharacterSet::contains(char16_t unit) const {
  return (members.find(unit) != members.npos) != inverted;
}

Object NSCharacterSet::invertedSet() const {
  return setOf(members, !inverted);
}

void NSCharacterSet::registerClass() {
  StandIn<NSCharacterSet>("Foundation", "NSCharacterSet", "NSObject")
      .classMethod<"whitespaceCharacterSet", &whitespace>()
      .classMethod<"newlineCharacterSet", &newlines>()
      .classMethod<"whitespaceAndNewlineCharacterSet", &whitespaceAndNewlines>()
      .partialClassMethod<"characterSetWithCharactersInString:", &charactersInString>(
          "UTF-16 units")
      .method<"characterIsMember:", &NSCharacterSet::contains>()
      .method<"invertedSet", &NSCharacterSet::invertedSet>()
      .finish();
}

}  // namespace sim
