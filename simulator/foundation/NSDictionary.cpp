#include "simulator/foundation/NSDictionary.h"

#include <cstdarg>
#include <string>
#include <vector>

#include "objc/Block.h"
#include "simulator/foundation/CollectionDescription.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSMutableDictionary.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/Values.h"
#include "simulator/foundation/Variadic.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

const KeyTable& table(Object self) {
  return NSDictionary::of(self).table;
}

// The table of a dictionary argument; empty for nil.
const KeyTable& argument(Object dictionary) {
  static const KeyTable none;
  if (!dictionary) return none;
  if (const NSDictionary* state = stateOf<NSDictionary>(dictionary)) return state->table;
  raiseException("NSInvalidArgumentException",
                 "a dictionary is needed, not " + description(dictionary));
}

Object made(id cls, KeyTable table) {
  Strong<Object> dictionary = makeOf(cls);
  NSDictionary::of(dictionary.get()).table = std::move(table);
  return autorelease(std::move(dictionary));
}

// The first value given for a key stays, as in the platform's initialisers.
void addFirst(Object self, Object key, Object value, unsigned long index) {
  if (!key || !value) {
    raiseException("NSInvalidArgumentException",
                   "*** -[NSDictionary initWithObjects:forKeys:count:]: attempt to insert nil "
                   "object from " +
                       std::string(key ? "objects" : "keys") + '[' + std::to_string(index) + ']');
  }
  NSDictionary& dictionary = NSDictionary::of(self);
  if (dictionary.table.find(key) == nullptr) dictionary.put(key, value);
}

Object initWithObjects(Object self, const id* objects, const id* keys, unsigned long count) {
  for (unsigned long i = 0; i < count; ++i) addFirst(self, Object(keys[i]), Object(objects[i]), i);
  return self;
}
Object makeWithObjects(id cls, const id* objects, const id* keys, unsigned long count) {
  return initWithObjects(autorelease(makeOf(cls)), objects, keys, count);
}
Object makeWithArrays(id cls, Object objects, Object keys) {
  const NSArray* values = stateOf<NSArray>(objects);
  const NSArray* names = stateOf<NSArray>(keys);
  const unsigned long count = values != nullptr ? values->elements.size() : 0;
  if (count != (names != nullptr ? names->elements.size() : 0)) {
    raiseException("NSInvalidArgumentException",
                   "*** -[NSDictionary initWithObjects:forKeys:]: count of objects (" +
                       std::to_string(count) + ") differs from count of keys");
  }
  const Object dictionary = autorelease(makeOf(cls));
  for (unsigned long i = 0; i < count; ++i)
    addFirst(dictionary, names->elements[i], values->elements[i], i);
  return dictionary;
}
id makeWithList(id cls, SEL, id first, std::va_list rest) {
  const Object dictionary = autorelease(makeOf(cls));
  unsigned long index = 0;
  for (id value = first; value != nullptr; value = va_arg(rest, id))
    addFirst(dictionary, Object(va_arg(rest, id)), Object(value), index++);
  return dictionary.get();
}
Object makeEmpty(id cls) {
  return made(cls, {});
}
Object makeWithObject(id cls, Object value, Object key) {
  const Object dictionary = autorelease(makeOf(cls));
  addFirst(dictionary, key, value, 0);
  return dictionary;
}
Object makeWithDictionary(id cls, Object other) {
  return made(cls, argument(other));
}
Object initWithDictionary(Object self, Object other) {
  NSDictionary::of(self).table = argument(other);
  return self;
}

Object read(Object path) {
  std::string problem;
  const Object list =
      path ? readPropertyList(Phone::current().file(text(path)), &problem) : nullptr;
  return isA<NSDictionary>(list) ? list : nullptr;
}
Object makeWithContentsOfFile(id cls, Object path) {
  const Object dictionary = read(path);
  return dictionary ? made(cls, table(dictionary)) : nullptr;
}
Object initWithContentsOfFile(Object self, Object path) {
  const Object dictionary = read(path);
  return dictionary ? initWithDictionary(self, dictionary) : failInit(self.get());
}

unsigned long count(Object self) {
  return table(self).size();
}
Object objectForKey(Object self, Object key) {
  return NSDictionary::of(self).value(key);
}
Object allKeys(Object self) {
  std::vector<Object> keys;
  for (const KeyEntry& entry : table(self)) keys.push_back(entry.key);
  return array(keys);
}
Object allValues(Object self) {
  std::vector<Object> values;
  for (const KeyEntry& entry : table(self)) values.push_back(entry.value);
  return array(values);
}

using Visitor = objc::Block<void(Object, Object, bool*)>;

void enumerateKeysAndObjects(Object self, Visitor visit) {
  const KeyTable all = table(self);
  bool stop = false;
  for (auto entry = all.begin(); entry != all.end() && !stop; ++entry)
    visit(entry->key, entry->value, &stop);
}

bool isEqual(Object self, Object other) {
  const NSDictionary* its = stateOf<NSDictionary>(other);
  if (its == nullptr || its->table.size() != count(self)) return false;
  for (const KeyEntry& entry : table(self)) {
    const Object value = its->value(entry.key);
    if (!value || !objc::send<bool, "isEqual:">(entry.value.get(), value)) return false;
  }
  return true;
}

void addFactories(StandIn<NSDictionary>& standIn) {
  standIn.factory<"dictionary", &makeEmpty>()
      .factory<"dictionaryWithObject:forKey:", &makeWithObject>()
      .factory<"dictionaryWithDictionary:", &makeWithDictionary>()
      .factory<"dictionaryWithObjects:forKeys:count:", &makeWithObjects>()
      .factory<"dictionaryWithObjects:forKeys:", &makeWithArrays>()
      .factory<"dictionaryWithContentsOfFile:", &makeWithContentsOfFile>()
      .method<"initWithDictionary:", &initWithDictionary>()
      .method<"initWithObjects:forKeys:count:", &initWithObjects>()
      .method<"initWithContentsOfFile:", &initWithContentsOfFile>();
  addVariadic<&makeWithList>({NSDictionary::cls(), '+', "dictionaryWithObjectsAndKeys:", "@@:@"});
}

}  // namespace

void NSDictionary::put(Object key, Object value) {
  const Strong<Object> copied = objc::adopt(objc::send<Object, "copy">(key));
  table.put(copied, value);
}

void NSDictionary::registerClass() {
  StandIn<NSDictionary> standIn("Foundation", "NSDictionary", "NSObject");
  addFactories(standIn);
  standIn.partial<"writeToFile:atomically:", &writeToPhone>("always atomic and binary")
      .method<"count", &count>()
      .method<"objectForKey:", &objectForKey>()
      .method<"objectForKeyedSubscript:", &objectForKey>()
      .method<"allKeys", &allKeys>()
      .method<"allValues", &allValues>()
      .partial<"enumerateKeysAndObjectsUsingBlock:", &enumerateKeysAndObjects>(
          "changing the dictionary meanwhile is not noticed: the entries at the start are visited")
      .method<"isEqual:", &isEqual>()
      .method<"isEqualToDictionary:", &isEqual>()
      .method<"hash", &count>()
      .method<"copyWithZone:", &shareAsCopy>()
      .method<"mutableCopyWithZone:",
              &copyAs<NSMutableDictionary, NSDictionary, &NSDictionary::table>>()
      .method<"description", &collectionDescription>()
      .finish();
}

}  // namespace sim
