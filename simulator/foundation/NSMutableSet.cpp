#include "simulator/foundation/NSMutableSet.h"

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSSet.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

KeyTable& table(Object self) {
  return NSSet::of(self).table;
}

// A copy, because a set may be added to or taken from itself.
KeyTable members(Object set) {
  const NSSet* state = stateOf<NSSet>(set);
  return state != nullptr ? state->table : KeyTable();
}

void addObject(Object self, Object member) {
  requireObject(self, "addObject:", member);
  if (table(self).find(member) == nullptr) table(self).put(member, nullptr);
}
void addObjectsFromArray(Object self, Object array) {
  if (const NSArray* state = stateOf<NSArray>(array))
    for (const Strong<Object>& member : state->elements) addObject(self, member);
}
void removeObject(Object self, Object member) {
  requireObject(self, "removeObject:", member);
  const Strong<Object> kept = objc::retain(member);
  table(self).remove(member);
}
void removeAllObjects(Object self) {
  table(self).clear();
}
void unionSet(Object self, Object other) {
  for (const KeyEntry& entry : members(other)) addObject(self, entry.key);
}
void minusSet(Object self, Object other) {
  for (const KeyEntry& entry : members(other)) table(self).remove(entry.key);
}

}  // namespace

void NSMutableSet::registerClass() {
  StandIn<NSMutableSet>("Foundation", "NSMutableSet", "NSSet")
      .method<"addObject:", &addObject>()
      .method<"addObjectsFromArray:", &addObjectsFromArray>()
      .method<"removeObject:", &removeObject>()
      .method<"removeAllObjects", &removeAllObjects>()
      .method<"unionSet:", &unionSet>()
      .method<"minusSet:", &minusSet>()
      .method<"copyWithZone:", &copyAs<NSSet, NSSet, &NSSet::table>>()
      .finish();
}

}  // namespace sim
