#include "simulator/foundation/NSCharacterSet.h"

#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

bool isBlank(char16_t unit) {
  return unicode::isWhitespace(unit) && !unicode::isNewline(unit);
}

Object setWhere(bool (*test)(char16_t)) {
  auto made = NSCharacterSet::make();
  NSCharacterSet::of(made.get()).test = test;
  return autorelease(std::move(made));
}

Object whitespace() {
  return setWhere(isBlank);
}
Object newlines() {
  return setWhere(unicode::isNewline);
}
Object whitespaceAndNewlines() {
  return setWhere(unicode::isWhitespace);
}
Object charactersInString(Object text) {
  auto made = NSCharacterSet::make();
  NSCharacterSet::of(made.get()).members = unitsOf(text);
  return autorelease(std::move(made));
}

}  // namespace

bool NSCharacterSet::contains(char16_t unit) const {
  const bool isMember = test != nullptr ? test(unit) : members.find(unit) != members.npos;
  return isMember != inverted;
}

Object NSCharacterSet::invertedSet() const {
  auto made = NSCharacterSet::make();
  NSCharacterSet& other = NSCharacterSet::of(made.get());
  other.test = test;
  other.members = members;
  other.inverted = !inverted;
  return autorelease(std::move(made));
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
