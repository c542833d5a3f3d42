#include "simulator/foundation/NSSet.h"

#include <cstdarg>
#include <string>
#include <vector>

#include "simulator/foundation/CollectionDescription.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSMutableSet.h"
#include "simulator/foundation/Values.h"
#include "simulator/foundation/Variadic.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

KeyTable& table(Object self) {
  return NSSet::of(self).table;
}

void add(Object self, Object member, unsigned long index) {
  requireElement("NSSet", member, index);
  table(self).put(member, nullptr);
}

Object makeEmpty(id cls) {
  return autorelease(makeOf(cls));
}
Object makeWithObject(id cls, Object member) {
  const Object set = makeEmpty(cls);
  add(set, member, 0);
  return set;
}
Object initWithObjects(Object self, const id* objects, unsigned long count) {
  for (unsigned long i = 0; i < count; ++i) add(self, Object(objects[i]), i);
  return self;
}
Object makeWithObjects(id cls, const id* objects, unsigned long count) {
  return initWithObjects(makeEmpty(cls), objects, count);
}
Object initWithArray(Object self, Object members) {
  if (const NSArray* state = stateOf<NSArray>(members))
    for (const Strong<Object>& member : state->elements) table(self).put(member, nullptr);
  return self;
}
Object makeWithArray(id cls, Object members) {
  return initWithArray(makeEmpty(cls), members);
}
Object makeWithSet(id cls, Object other) {
  const Object set = makeEmpty(cls);
  if (const NSSet* state = stateOf<NSSet>(other)) table(set) = state->table;
  return set;
}
id makeWithList(id cls, SEL, id first, std::va_list rest) {
  const Object set = makeEmpty(cls);
  for (id member = first; member != nullptr; member = va_arg(rest, id)) add(set, Object(member), 0);
  return set.get();
}

unsigned long count(Object self) {
  return table(self).size();
}
Object member(Object self, Object wanted) {
  const KeyEntry* entry = table(self).find(wanted);
  return entry == nullptr ? Object() : entry->key.get();
}
bool containsObject(Object self, Object wanted) {
  return bool(member(self, wanted));
}
Object allObjects(Object self) {
  std::vector<Object> members;
  for (const KeyEntry& entry : table(self)) members.push_back(entry.key);
  return array(members);
}
Object anyObject(Object self) {
  return count(self) == 0 ? Object() : table(self).begin()->key.get();
}

bool isEqual(Object self, Object other) {
  const NSSet* its = stateOf<NSSet>(other);
  if (its == nullptr || its->table.size() != count(self)) return false;
  for (const KeyEntry& entry : table(self))
    if (its->table.find(entry.key) == nullptr) return false;
  return true;
}

}  // namespace

void NSSet::registerClass() {
  StandIn<NSSet>("Foundation", "NSSet", "NSObject")
      .factory<"set", &makeEmpty>()
      .factory<"setWithObject:", &makeWithObject>()
      .factory<"setWithObjects:count:", &makeWithObjects>()
      .factory<"setWithArray:", &makeWithArray>()
      .factory<"setWithSet:", &makeWithSet>()
      .method<"initWithObjects:count:", &initWithObjects>()
      .method<"initWithArray:", &initWithArray>()
      .method<"count", &count>()
      .method<"member:", &member>()
      .method<"containsObject:", &containsObject>()
      .method<"allObjects", &allObjects>()
      .method<"anyObject", &anyObject>()
      .method<"isEqual:", &isEqual>()
      .method<"isEqualToSet:", &isEqual>()
      .method<"hash", &count>()
      .method<"copyWithZone:", &shareAsCopy>()
      .method<"mutableCopyWithZone:", &copyAs<NSMutableSet, NSSet, &NSSet::table>>()
      .method<"description", &collectionDescription>()
      .finish();
  addVariadic<&makeWithList>({NSSet::cls(), '+', "setWithObjects:", "@@:@"});
}

}  // namespace sim
