#include "simulator/foundation/NSMutableArray.h"

#include <string>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSRange.h"
#include "simulator/foundation/Sorting.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

NSArray::Elements& elements(Object self) {
  return NSArray::of(self).elements;
}

Object makeWithCapacity(id cls, unsigned long) {
  return autorelease(makeOf(cls));
}
Object initWithCapacity(Object self, unsigned long) {
  return self;
}

void insertObject(Object self, Object added, unsigned long index) {
  requireObject(self, "insertObject:atIndex:", added);
  if (index > elements(self).size()) requireIndex(self, "insertObject:atIndex:", index);
  elements(self).insert(elements(self).begin() + long(index), objc::retain(added));
}
// The platform's class adds by inserting, and its message says so.
void addObject(Object self, Object added) {
  insertObject(self, added, elements(self).size());
}
void addObjectsFromArray(Object self, Object added) {
  const NSArray* its = stateOf<NSArray>(added);
  if (its == nullptr) return;
  const auto copy = its->elements;  // an array may be added to itself
  elements(self).insert(elements(self).end(), copy.begin(), copy.end());
}

void removeObjectAtIndex(Object self, unsigned long index) {
  requireIndex(self, "removeObjectAtIndex:", index);
  const Strong<Object> removed = elements(self)[index];  // released once it is out
  elements(self).erase(elements(self).begin() + long(index));
}
void removeLastObject(Object self) {
  if (!elements(self).empty()) removeObjectAtIndex(self, elements(self).size() - 1);
}
void removeObject(Object self, Object unwanted) {
  const Strong<Object> kept = objc::retain(unwanted);  // it may be one of the elements
  for (;;) {
    const unsigned long index = indexOf(NSArray::of(self), unwanted);
    if (index == NSNotFound) return;
    removeObjectAtIndex(self, index);
  }
}
void removeAllObjects(Object self) {
  NSArray::Elements removed;
  removed.swap(elements(self));
}

void replaceObject(Object self, unsigned long index, Object added) {
  requireObject(self, "replaceObjectAtIndex:withObject:", added);
  requireIndex(self, "replaceObjectAtIndex:withObject:", index);
  elements(self)[index] = objc::retain(added);
}
void setObject(Object self, Object added, unsigned long index) {
  requireObject(self, "setObject:atIndexedSubscript:", added);
  if (index == elements(self).size()) return insertObject(self, added, index);
  requireIndex(self, "setObject:atIndexedSubscript:", index);
  elements(self)[index] = objc::retain(added);
}
void exchangeObjects(Object self, unsigned long one, unsigned long other) {
  requireIndex(self, "exchangeObjectAtIndex:withObjectAtIndex:", one);
  requireIndex(self, "exchangeObjectAtIndex:withObjectAtIndex:", other);
  std::swap(elements(self)[one], elements(self)[other]);
}
void setArray(Object self, Object other) {
  const NSArray* its = stateOf<NSArray>(other);
  auto copy = its != nullptr ? its->elements : NSArray::Elements();
  elements(self).swap(copy);
}

void sortUsingSelector(Object self, SEL selector) {
  elements(self) = sorted(elements(self), selector);
}
void sortUsingComparator(Object self, Comparator comparator) {
  elements(self) = sorted(elements(self), comparator);
}

}  // namespace

void NSMutableArray::registerClass() {
  StandIn<NSMutableArray>("Foundation", "NSMutableArray", "NSArray")
      .factory<"arrayWithCapacity:", &makeWithCapacity>()
      .method<"initWithCapacity:", &initWithCapacity>()
      .method<"addObject:", &addObject>()
      .method<"addObjectsFromArray:", &addObjectsFromArray>()
      .method<"insertObject:atIndex:", &insertObject>()
      .method<"removeObjectAtIndex:", &removeObjectAtIndex>()
      .method<"removeLastObject", &removeLastObject>()
      .method<"removeObject:", &removeObject>()
      .method<"removeAllObjects", &removeAllObjects>()
      .method<"replaceObjectAtIndex:withObject:", &replaceObject>()
      .method<"setObject:atIndexedSubscript:", &setObject>()
      .method<"exchangeObjectAtIndex:withObjectAtIndex:", &exchangeObjects>()
      .method<"setArray:", &setArray>()
      .method<"sortUsingSelector:", &sortUsingSelector>()
      .method<"sortUsingComparator:", &sortUsingComparator>()
      .method<"copyWithZone:", &copyAs<NSArray, NSArray, &NSArray::elements>>()
      .finish();
}

}  // namespace sim
