#include "simulator/foundation/NSString.h"

#include <functional>

#include "simulator/foundation/AtomicFile.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Format.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSData.h"
#include "simulator/foundation/NSMutableString.h"
#include "simulator/foundation/NSStringContent.h"
#include "simulator/foundation/NSStringNumbers.h"
#include "simulator/foundation/NSStringPaths.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/foundation/Values.h"
#include "simulator/foundation/Variadic.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

constexpr unsigned long NSASCIIStringEncoding = 1;
constexpr unsigned long NSUTF8StringEncoding = 4;

bool isUtf8(unsigned long encoding) {
  return encoding == NSUTF8StringEncoding || encoding == NSASCIIStringEncoding;
}

Object makeEmpty(id cls) {
  return autorelease(makeOf(cls));
}

Object makeFromUtf8(id cls, const char* bytes) {
  return Object(objc_autorelease(
      objc::send<id, "initWithUTF8String:">(objc_alloc(reinterpret_cast<Class>(cls)), bytes)));
}

Object makeFromString(id cls, Object other) {
  objc::Strong<Object> made = makeOf(cls);
  NSString::of(made.get()).units = unitsOf(other);
  return autorelease(std::move(made));
}

id makeFromFormat(id cls, SEL, id format, std::va_list arguments) {
  objc::Strong<Object> made = makeOf(cls);
  NSString::of(made.get()).units = formatted(Object(format), arguments);
  return autorelease(std::move(made)).get();
}

id initWithFormat(id self, SEL, id format, std::va_list arguments) {
  NSString::of(self).units = formatted(Object(format), arguments);
  return self;
}

}  // namespace

const std::u16string& unitsOf(Object string) {
  if (const NSString* state = stateOf<NSString>(string)) return state->units;
  raiseException("NSInvalidArgumentException",
                 string ? "a string is needed, not " + description(string) : "nil argument");
}

Object stringOf(std::u16string units) {
  objc::Strong<Object> made = NSString::make();
  NSString::of(made.get()).units = std::move(units);
  return autorelease(std::move(made));
}

std::u16string formatted(Object format, std::va_list arguments) {
  return formatUnits(unitsOf(format), arguments);
}

Object NSString::initWithUTF8String(const char* bytes) {
  if (bytes == nullptr) {
    raiseException("NSInvalidArgumentException",
                   "*** " + methodName(Object(self()), "initWithUTF8String:") + ": NULL cString");
  }
  auto decoded = unicode::fromUtf8(bytes);
  if (!decoded) return failInit(self());
  units = std::move(*decoded);
  return Object(self());
}

Object NSString::initWithString(Object other) {
  units = unitsOf(other);
  return Object(self());
}

Object NSString::initWithData(Object data, unsigned long encoding) {
  const NSData* state = stateOf<NSData>(data);
  if (state == nullptr || !isUtf8(encoding)) return failInit(self());
  auto decoded = unicode::fromUtf8(state->content);
  if (!decoded) return failInit(self());
  units = std::move(*decoded);
  return Object(self());
}

Object NSString::initWithContentsOfFile(Object path, unsigned long encoding, Object* error) {
  if (error != nullptr) *error = nullptr;
  const auto bytes = fileContent(Phone::current().file(text(path)));
  if (!bytes || !isUtf8(encoding)) return failInit(self());
  auto decoded = unicode::fromUtf8(*bytes);
  if (!decoded) return failInit(self());
  units = std::move(*decoded);
  return Object(self());
}

bool NSString::writeToFile(Object path, bool, unsigned long encoding, Object* error) const {
  if (error != nullptr) *error = nullptr;
  if (!isUtf8(encoding)) return false;
  std::string problem;
  return writeFileAtomically(Phone::current().file(text(path)), unicode::toUtf8(units), &problem);
}

const char* NSString::UTF8String() {
  utf8 = unicode::toUtf8(units);
  return utf8.c_str();
}

char16_t NSString::characterAtIndex(unsigned long index) const {
  if (index >= units.size()) {
    raiseException("NSRangeException", methodName(Object(self()), "characterAtIndex:") +
                                           ": Range or index out of bounds");
  }
  return units[index];
}

Object NSString::dataUsingEncoding(unsigned long encoding) const {
  return isUtf8(encoding) ? dataOf(unicode::toUtf8(units)) : nullptr;
}

bool NSString::isEqual(Object other) const {
  const NSString* state = stateOf<NSString>(other);
  return state != nullptr && state->units == units;
}

bool NSString::isEqualToString(Object other) const {
  return isEqual(other);
}

unsigned long NSString::hash() const {
  return std::hash<std::u16string>()(units);
}

long NSString::compare(Object other) const {
  const int order = units.compare(unitsOf(other));
  return order < 0 ? -1 : order > 0;
}

long NSString::caseInsensitiveCompare(Object other) const {
  const int order = unicode::lowerCase(units).compare(unicode::lowerCase(unitsOf(other)));
  return order < 0 ? -1 : order > 0;
}

Object NSString::copyWithZone(void*) const {
  return Object(objc_retain(self()));
}

Object NSString::mutableCopyWithZone(void*) const {
  objc::Strong<Object> made = NSMutableString::make();
  NSString::of(made.get()).units = units;
  return made.detach();
}

Object NSString::description() const {
  return Object(self());
}

void NSString::registerClass() {
  StandIn<NSString> standIn("Foundation", "NSString", "NSObject");
  standIn.factory<"string", &makeEmpty>()
      .factory<"stringWithUTF8String:", &makeFromUtf8>()
      .factory<"stringWithString:", &makeFromString>()
      .method<"initWithUTF8String:", &NSString::initWithUTF8String>()
      .method<"initWithString:", &NSString::initWithString>()
      .partial<"initWithData:encoding:", &NSString::initWithData>("UTF-8 and ASCII only")
      .partial<"initWithContentsOfFile:encoding:error:", &NSString::initWithContentsOfFile>(
          "UTF-8 and ASCII only; reports failure without an error object")
      .partial<"writeToFile:atomically:encoding:error:", &NSString::writeToFile>(
          "UTF-8 and ASCII only; always atomic; reports failure without an error object")
      .partial<"UTF8String", &NSString::UTF8String>(
          "the bytes last until the string changes or is asked again, not until the pool is "
          "drained")
      .method<"length", &NSString::length>()
      .method<"characterAtIndex:", &NSString::characterAtIndex>()
      .partial<"dataUsingEncoding:", &NSString::dataUsingEncoding>("UTF-8 and ASCII only")
      .method<"isEqual:", &NSString::isEqual>()
      .method<"isEqualToString:", &NSString::isEqualToString>()
      .method<"hash", &NSString::hash>()
      .partial<"compare:", &NSString::compare>(
          "by UTF-16 units; precomposed and decomposed characters differ")
      .partial<"caseInsensitiveCompare:", &NSString::caseInsensitiveCompare>(
          "by UTF-16 units; precomposed and decomposed characters differ")
      .method<"copyWithZone:", &NSString::copyWithZone>()
      .method<"mutableCopyWithZone:", &NSString::mutableCopyWithZone>()
      .method<"description", &NSString::description>();
  addContentMethods(standIn);
  addNumberMethods(standIn);
  addPathMethods(standIn);
  standIn.finish();
  addVariadic<&makeFromFormat>({NSString::cls(), '+', "stringWithFormat:", "@@:@"});
  addVariadic<&initWithFormat>({NSString::cls(), '-', "initWithFormat:", "@@:@"});
}

}  // namespace sim
