// What every object can do, and objects for numbers and times.
#pragma once

#include "objc/Ownership.h"
#include "platform/foundation/String.h"

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
