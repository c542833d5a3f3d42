#include "simulator/foundation/NSMutableString.h"

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Variadic.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

const std::u16string& argument(id self, const char* selector, Object value) {
  if (!value) {
    raiseException("NSInvalidArgumentException",
                   "*** " + methodName(Object(self), selector) + ": nil argument");
  }
  return unitsOf(value);
}

Object makeWithCapacity(id cls, unsigned long) {
  return autorelease(makeOf(cls));
}

void appendFormat(id self, SEL, id format, std::va_list arguments) {
  const std::u16string added = formatted(Object(format), arguments);
  NSString::of(self).units += added;
}

}  // namespace

void NSMutableString::appendString(Object other) {
  NSString::of(self()).units += argument(self(), "appendString:", other);
}

void NSMutableString::setString(Object other) {
  NSString::of(self()).units = argument(self(), "setString:", other);
}

void NSMutableString::insertString(Object other, unsigned long index) {
  const std::u16string& added = argument(self(), "insertString:atIndex:", other);
  std::u16string& units = NSString::of(self()).units;
  if (index > units.size()) {
    raiseException("NSRangeException", methodName(Object(self()), "insertString:atIndex:") +
                                           ": Range or index out of bounds");
  }
  units.insert(index, added);
}

void NSMutableString::deleteCharactersInRange(NSRange range) {
  std::u16string& units = NSString::of(self()).units;
  if (range.location > units.size() || range.length > units.size() - range.location) {
    raiseException("NSRangeException", methodName(Object(self()), "deleteCharactersInRange:") +
                                           ": Range or index out of bounds");
  }
  units.erase(range.location, range.length);
}

Object NSMutableString::initWithCapacity(unsigned long) {
  return Object(self());
}

Object NSMutableString::copyWithZone(void*) const {
  objc::Strong<Object> made = NSString::make();
  NSString::of(made.get()).units = NSString::of(self()).units;
  return made.detach();
}

void NSMutableString::registerClass() {
  StandIn<NSMutableString>("Foundation", "NSMutableString", "NSString")
      .factory<"stringWithCapacity:", &makeWithCapacity>()
      .method<"initWithCapacity:", &NSMutableString::initWithCapacity>()
      .method<"appendString:", &NSMutableString::appendString>()
      .method<"setString:", &NSMutableString::setString>()
      .method<"insertString:atIndex:", &NSMutableString::insertString>()
      .method<"deleteCharactersInRange:", &NSMutableString::deleteCharactersInRange>()
      .method<"copyWithZone:", &NSMutableString::copyWithZone>()
      .finish();
  addVariadic<&appendFormat>({NSMutableString::cls(), '-', "appendFormat:", "v@:@"});
}

}  // namespace sim
