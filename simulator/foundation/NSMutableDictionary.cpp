#include "simulator/foundation/NSMutableDictionary.h"

#include <string>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

NSDictionary& dictionary(Object self) {
  return NSDictionary::of(self);
}

[[noreturn]] void raiseNil(Object self, const char* selector, const std::string& what) {
  raiseException("NSInvalidArgumentException",
                 "*** " + methodName(self, selector) + ": " + what + " cannot be nil");
}

Object makeWithCapacity(id cls, unsigned long) {
  return autorelease(makeOf(cls));
}
Object initWithCapacity(Object self, unsigned long) {
  return self;
}

void setObject(Object self, Object value, Object key) {
  if (!key) raiseNil(self, "setObject:forKey:", "key");
  if (!value) {
    raiseException("NSInvalidArgumentException",
                   "*** " + methodName(self, "setObject:forKey:") +
                       ": object cannot be nil (key: " + description(key) + ")");
  }
  dictionary(self).put(key, value);
}

void removeObjectForKey(Object self, Object key) {
  if (!key) raiseNil(self, "removeObjectForKey:", "key");
  const Strong<Object> kept = objc::retain(key);  // it may be the table's own
  dictionary(self).table.remove(key);
}

// dictionary[key] = nil removes.
void setObjectForKeyedSubscript(Object self, Object value, Object key) {
  if (!key) raiseNil(self, "setObject:forKeyedSubscript:", "key");
  if (value)
    dictionary(self).put(key, value);
  else
    removeObjectForKey(self, key);
}

void removeAllObjects(Object self) {
  dictionary(self).table.clear();
}

void removeObjectsForKeys(Object self, Object keys) {
  const NSArray* names = stateOf<NSArray>(keys);
  if (names == nullptr) return;
  const auto all = names->elements;
  for (const Strong<Object>& key : all) removeObjectForKey(self, key);
}

void addEntriesFromDictionary(Object self, Object other) {
  const NSDictionary* its = stateOf<NSDictionary>(other);
  if (its == nullptr) return;
  const KeyTable entries = its->table;
  for (const KeyEntry& entry : entries) dictionary(self).put(entry.key, entry.value);
}

void setDictionary(Object self, Object other) {
  const NSDictionary* its = stateOf<NSDictionary>(other);
  dictionary(self).table = its != nullptr ? its->table : KeyTable();
}

}  // namespace

void NSMutableDictionary::registerClass() {
  StandIn<NSMutableDictionary>("Foundation", "NSMutableDictionary", "NSDictionary")
      .factory<"dictionaryWithCapacity:", &makeWithCapacity>()
      .method<"initWithCapacity:", &initWithCapacity>()
      .method<"setObject:forKey:", &setObject>()
      .method<"setObject:forKeyedSubscript:", &setObjectForKeyedSubscript>()
      .method<"removeObjectForKey:", &removeObjectForKey>()
      .method<"removeObjectsForKeys:", &removeObjectsForKeys>()
      .method<"removeAllObjects", &removeAllObjects>()
      .method<"addEntriesFromDictionary:", &addEntriesFromDictionary>()
      .method<"setDictionary:", &setDictionary>()
      .method<"copyWithZone:", &copyAs<NSDictionary, NSDictionary, &NSDictionary::table>>()
      .finish();
}

}  // namespace sim
