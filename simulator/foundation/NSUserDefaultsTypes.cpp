#include "simulator/foundation/NSUserDefaultsTypes.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSData.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

Object stored(Object self, Object key) {
  return NSUserDefaults::of(self).objectForKey(key);
}

void store(Object self, Object value, Object key) {
  objc::send<void, "setObject:forKey:">(self, value, key);
}

// Numbers and strings convert; anything else reads as 0.
template <class Number, objc::FixedString Selector>
Number numberForKey(Object self, Object key) {
  const Object value = stored(self, key);
  if (!isA<NSNumber>(value) && !isA<NSString>(value)) return 0;
  return objc::send<Number, Selector>(value);
}

template <class Number>
void setNumber(Object self, Number value, Object key) {
  store(self, numberOf(value), key);
}

template <class State>
Object ofKind(Object self, Object key) {
  const Object value = stored(self, key);
  return isA<State>(value) ? value : Object();
}

Object stringForKey(Object self, Object key) {
  const Object value = stored(self, key);
  if (const NSNumber* number = stateOf<NSNumber>(value)) return string(number->text());
  return isA<NSString>(value) ? value : Object();
}

}  // namespace

void addTypedAccess(StandIn<NSUserDefaults>& standIn) {
  standIn.method<"integerForKey:", &numberForKey<long, "integerValue">>()
      .method<"boolForKey:", &numberForKey<bool, "boolValue">>()
      .method<"doubleForKey:", &numberForKey<double, "doubleValue">>()
      .method<"floatForKey:", &numberForKey<float, "floatValue">>()
      .method<"setInteger:forKey:", &setNumber<long>>()
      .method<"setBool:forKey:", &setNumber<bool>>()
      .method<"setDouble:forKey:", &setNumber<double>>()
      .method<"setFloat:forKey:", &setNumber<float>>()
      .method<"stringForKey:", &stringForKey>()
      .method<"arrayForKey:", &ofKind<NSArray>>()
      .method<"dictionaryForKey:", &ofKind<NSDictionary>>()
      .method<"dataForKey:", &ofKind<NSData>>();
}

}  // namespace sim
