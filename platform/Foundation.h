// Foundation. Every result that is not marked otherwise is +0 (autoreleased).
#pragma once

#include <utility>

#include "objc/Block.h"
#include "objc/Message.h"
#include "objc/Ownership.h"
#include "platform/HostFunction.h"

struct NSArray;

struct NSString : objc::Object {
  using Object::Object;
  static Class cls() { return objc::classNamed<"NSString">(); }
  static NSString string(const char* utf8) {
    return objc::send<NSString, "stringWithUTF8String:">(objc::classNamed<"NSString">(), utf8);
  }
  const char* UTF8String() const { return objc::send<const char*, "UTF8String">(*this); }
  bool isEqual(objc::Object other) const { return objc::send<bool, "isEqual:">(*this, other); }
  bool isEqualToString(NSString other) const {
    return objc::send<bool, "isEqualToString:">(*this, other);
  }
  float floatValue() const { return objc::send<float, "floatValue">(*this); }
  bool containsString(NSString other) const {
    return objc::send<bool, "containsString:">(*this, other);
  }
  NSString stringByReplacingOccurrencesOfString(NSString wanted, NSString replacement) const {
    return objc::send<NSString, "stringByReplacingOccurrencesOfString:withString:">(*this, wanted,
                                                                                    replacement);
  }
  // The arguments are those of the format, as the platform reads them: int for "%d", long for
  // "%ld", double for "%g", an object for "%@".
  template <class... Arguments>
  static NSString stringWithFormat(NSString format, Arguments... arguments) {
    return objc::sendVariadic<NSString, "stringWithFormat:">(cls(), format, arguments...);
  }
  NSString stringByTrimmingWhitespaceAndNewlines() const {
    const auto blanks = objc::send<objc::Object, "whitespaceAndNewlineCharacterSet">(
        objc::classNamed<"NSCharacterSet">());
    return objc::send<NSString, "stringByTrimmingCharactersInSet:">(*this, blanks);
  }
  unsigned long length() const { return objc::send<unsigned long, "length">(*this); }
  NSArray componentsSeparatedByString(NSString separator) const;
  long integerValue() const { return objc::send<long, "integerValue">(*this); }
  NSString stringByAppendingPathComponent(NSString component) const {
    return objc::send<NSString, "stringByAppendingPathComponent:">(*this, component);
  }
  NSString stringByAppendingString(NSString other) const {
    return objc::send<NSString, "stringByAppendingString:">(*this, other);
  }
};

// A string literal as the platform's string, made when it is needed: constant strings cannot be
// linked into the extension (their isa would have to be signed).
inline NSString operator""_ns(const char* text, std::size_t) {
  return NSString::string(text);
}

struct NSMutableString : NSString {
  using NSString::NSString;
  static NSMutableString string() {
    return objc::send<NSMutableString, "string">(objc::classNamed<"NSMutableString">());
  }
  void appendString(NSString text) const { objc::send<void, "appendString:">(*this, text); }
};

struct NSObject : objc::Object {
  using Object::Object;
  void performSelectorAfterDelay(SEL selector, double seconds) const {
    objc::send<void, "performSelector:withObject:afterDelay:">(*this, selector,
                                                               objc::Object(nullptr), seconds);
  }
  void performSelector(SEL selector, objc::Object argument) const {
    objc::send<objc::Object, "performSelector:withObject:">(*this, selector, argument);
  }
  bool isKindOfClass(Class cls) const { return objc::send<bool, "isKindOfClass:">(*this, cls); }
  NSString description() const { return objc::send<NSString, "description">(*this); }
  // Raises for an unknown key, which ends the host.
  objc::Object valueForKey(NSString key) const {
    return objc::send<objc::Object, "valueForKey:">(*this, key);
  }
  // nil for an unknown key (the accessibility frameworks' variant).
  objc::Object safeValueForKey(NSString key) const {
    return objc::send<objc::Object, "safeValueForKey:">(*this, key);
  }
};

// Whether the object is of the view's class, or of one below it; false for nil, and when there is
// no such class.
template <objc::View T>
bool isKindOf(objc::Object object) {
  return objc::as<NSObject>(object).isKindOfClass(T::cls());
}

struct NSNumber : objc::Object {
  using Object::Object;
  static NSNumber numberWithBool(bool value) {
    return objc::send<NSNumber, "numberWithBool:">(objc::classNamed<"NSNumber">(), value);
  }
  static NSNumber numberWithInteger(long value) {
    return objc::send<NSNumber, "numberWithInteger:">(objc::classNamed<"NSNumber">(), value);
  }
  long integerValue() const { return objc::send<long, "integerValue">(*this); }

  // Of a value of any type, as a file may hold: NO and 0 for what has no such value.
  static bool boolValueOf(objc::Object value) {
    return objc::respondsTo<"boolValue">(value) && objc::send<bool, "boolValue">(value);
  }
  static long integerValueOf(objc::Object value) {
    return objc::respondsTo<"integerValue">(value) ? objc::as<NSNumber>(value).integerValue() : 0;
  }
};

struct NSDate : objc::Object {
  using Object::Object;
  static NSDate date() { return objc::send<NSDate, "date">(objc::classNamed<"NSDate">()); }
  static NSDate dateWithTimeIntervalSinceNow(double seconds) {
    return objc::send<NSDate, "dateWithTimeIntervalSinceNow:">(objc::classNamed<"NSDate">(),
                                                               seconds);
  }
  double timeIntervalSinceNow() const {  // seconds; negative in the past; 0 for nil
    return objc::send<double, "timeIntervalSinceNow">(*this);
  }
  // Of a value of any type: 0 for what is no date.
  static double timeIntervalSinceNowOf(objc::Object value) {
    if (!objc::respondsTo<"timeIntervalSinceNow">(value)) return 0;
    return objc::as<NSDate>(value).timeIntervalSinceNow();
  }
};

struct NSDictionary : objc::Object {
  using Object::Object;
  static NSDictionary dictionaryWithContentsOfFile(NSString path) {  // nil: not a dictionary
    return objc::send<NSDictionary, "dictionaryWithContentsOfFile:">(
        objc::classNamed<"NSDictionary">(), path);
  }
  objc::Object objectForKey(objc::Object key) const {
    return objc::send<objc::Object, "objectForKey:">(*this, key);
  }
  static NSDictionary dictionary() {
    return objc::send<NSDictionary, "dictionary">(objc::classNamed<"NSDictionary">());
  }
};

struct NSArray : objc::Object {
  using Object::Object;
  objc::Strong<NSArray> copy() const { return objc::adopt(objc::send<NSArray, "copy">(*this)); }
  unsigned long count() const { return objc::send<unsigned long, "count">(*this); }
  objc::Object objectAtIndex(unsigned long index) const {  // raises past the end
    return objc::send<objc::Object, "objectAtIndex:">(*this, index);
  }
  objc::Object firstObject() const {  // nil when empty
    return objc::send<objc::Object, "firstObject">(*this);
  }
  bool containsObject(objc::Object object) const {
    return objc::send<bool, "containsObject:">(*this, object);
  }
};

struct NSBundle : objc::Object {
  using Object::Object;
  static NSBundle bundleWithPath(NSString path) {  // nil when there is no such directory
    return objc::send<NSBundle, "bundleWithPath:">(objc::classNamed<"NSBundle">(), path);
  }
  // The layout's top-level objects. Raises when there is no such layout.
  NSArray loadNibNamed(NSString name, objc::Object owner) const {
    return objc::send<NSArray, "loadNibNamed:owner:options:">(*this, name, owner,
                                                              NSDictionary(nullptr));
  }
  NSString pathForResource(NSString name, NSString type) const {  // nil when it is missing
    return objc::send<NSString, "pathForResource:ofType:">(*this, name, type);
  }
  // A nil table is the default one, "Localizable".
  NSString localizedStringForKey(NSString key, NSString otherwise, NSString table) const {
    return objc::send<NSString, "localizedStringForKey:value:table:">(*this, key, otherwise, table);
  }
};

struct NSLocale : objc::Object {
  using Object::Object;
  static NSLocale currentLocale() {
    return objc::send<NSLocale, "currentLocale">(objc::classNamed<"NSLocale">());
  }
  static NSLocale localeWithLocaleIdentifier(NSString identifier) {
    return objc::send<NSLocale, "localeWithLocaleIdentifier:">(objc::classNamed<"NSLocale">(),
                                                               identifier);
  }
  NSString localeIdentifier() const { return objc::send<NSString, "localeIdentifier">(*this); }
};

struct NSNumberFormatter : objc::Object {
  using Object::Object;
  static objc::Strong<NSNumberFormatter> make() {
    return objc::adopt(NSNumberFormatter(objc_alloc_init(objc::classNamed<"NSNumberFormatter">())));
  }
  void setLocale(NSLocale locale) const { objc::send<void, "setLocale:">(*this, locale); }
  NSString stringFromNumber(NSNumber number) const {
    return objc::send<NSString, "stringFromNumber:">(*this, number);
  }
};

inline NSArray NSString::componentsSeparatedByString(NSString separator) const {
  return objc::send<NSArray, "componentsSeparatedByString:">(*this, separator);
}

struct NSMutableArray : NSArray {
  using NSArray::NSArray;
  static NSMutableArray array() {
    return objc::send<NSMutableArray, "array">(objc::classNamed<"NSMutableArray">());
  }
  void addObject(objc::Object object) const { objc::send<void, "addObject:">(*this, object); }
  void addObjectsFromArray(NSArray objects) const {
    objc::send<void, "addObjectsFromArray:">(*this, objects);
  }
};

struct NSFileManager : objc::Object {
  using Object::Object;
  static NSFileManager defaultManager() {
    return objc::send<NSFileManager, "defaultManager">(objc::classNamed<"NSFileManager">());
  }
  bool fileExistsAtPath(NSString path) const {
    return objc::send<bool, "fileExistsAtPath:">(*this, path);
  }
};

struct NSUserDefaults : objc::Object {
  using Object::Object;
  // The host process's own.
  static NSUserDefaults standardUserDefaults() {
    return objc::send<NSUserDefaults, "standardUserDefaults">(objc::classNamed<"NSUserDefaults">());
  }
  objc::Object objectForKey(NSString key) const {
    return objc::send<objc::Object, "objectForKey:">(*this, key);
  }
  void setObject(objc::Object value, NSString key) const {
    objc::send<void, "setObject:forKey:">(*this, value, key);
  }
  void removeObject(NSString key) const { objc::send<void, "removeObjectForKey:">(*this, key); }
  bool synchronize() const { return objc::send<bool, "synchronize">(*this); }
};

struct NSTimer : objc::Object {
  using Object::Object;
  // Runs on the current run loop, which keeps it until it is invalidated.
  template <class Tick>
  static NSTimer scheduledTimer(double seconds, bool repeats, Tick tick) {
    auto block = objc::block<void(NSTimer)>([tick = std::move(tick)](NSTimer) { tick(); });
    return objc::send<NSTimer, "scheduledTimerWithTimeInterval:repeats:block:">(
        objc::classNamed<"NSTimer">(), seconds, repeats, block.get());
  }
  void invalidate() const { objc::send<void, "invalidate">(*this); }
  NSDate fireDate() const { return objc::send<NSDate, "fireDate">(*this); }
};

struct NSRunLoop : objc::Object {
  using Object::Object;
  static NSRunLoop mainRunLoop() {
    return objc::send<NSRunLoop, "mainRunLoop">(objc::classNamed<"NSRunLoop">());
  }
  // Every mode in which the user may be touching something.
  static NSString commonModes() {
    return NSString(platform::hostConstant<"NSRunLoopCommonModes", id>());
  }
  void addTimer(NSTimer timer, NSString mode) const {
    objc::send<void, "addTimer:forMode:">(*this, timer, mode);
  }
};

struct NSThread : objc::Object {
  using Object::Object;
  static bool isMainThread() {
    return objc::send<bool, "isMainThread">(objc::classNamed<"NSThread">());
  }
};

struct NSProcessInfo : objc::Object {
  using Object::Object;
  static NSProcessInfo processInfo() {
    return objc::send<NSProcessInfo, "processInfo">(objc::classNamed<"NSProcessInfo">());
  }
  NSString processName() const { return objc::send<NSString, "processName">(*this); }
};

struct NSNotificationCenter : objc::Object {
  using Object::Object;
  static NSNotificationCenter defaultCenter() {
    return objc::send<NSNotificationCenter, "defaultCenter">(
        objc::classNamed<"NSNotificationCenter">());
  }
  // The observer is not retained. A nil sender means any. A nil name, of a notification that this
  // host does not have, registers nothing: the host would take it for every notification there is.
  void addObserver(objc::Object observer, SEL selector, NSString name, objc::Object sender) const {
    if (!name) return;
    objc::send<void, "addObserver:selector:name:object:">(*this, observer, selector, name, sender);
  }
  // By identity alone: the observer may be gone already.
  void removeObserver(objc::Object observer) const {
    objc::send<void, "removeObserver:">(*this, observer);
  }
  // No user info.
  void postNotificationName(NSString name, objc::Object sender) const {
    objc::send<void, "postNotificationName:object:">(*this, name, sender);
  }
};

// Writes one line to the system log.
inline void NSLog(NSString line) {
  if (auto* log = platform::hostFunction<"NSLog", void(id, ...)>())
    log(NSString::string("%@").get(), line.get());
}
