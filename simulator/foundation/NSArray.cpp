#include "simulator/foundation/NSArray.h"

#include <cstdarg>

#include "objc/Block.h"
#include "simulator/foundation/AtomicFile.h"
#include "simulator/foundation/CollectionDescription.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArrayDerived.h"
#include "simulator/foundation/NSMutableArray.h"
#include "simulator/foundation/NSRange.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/Values.h"
#include "simulator/foundation/Variadic.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;
using Elements = NSArray::Elements;

const Elements& elements(Object self) {
  return NSArray::of(self).elements;
}

Object makeEmpty(id cls) {
  return makeArray(cls, {});
}
Object makeWithObject(id cls, Object element) {
  Elements elements;
  addElement(elements, element);
  return makeArray(cls, std::move(elements));
}
Object makeWithArray(id cls, Object other) {
  return makeArray(cls, elementsOf(other));
}
Elements elementsFrom(const id* objects, unsigned long count) {
  Elements elements;
  for (unsigned long i = 0; i < count; ++i) addElement(elements, Object(objects[i]));
  return elements;
}
Object makeWithObjects(id cls, const id* objects, unsigned long count) {
  return makeArray(cls, elementsFrom(objects, count));
}
id makeWithList(id cls, SEL, id first, std::va_list rest) {
  Elements elements;
  for (id next = first; next != nullptr; next = va_arg(rest, id))
    addElement(elements, Object(next));
  return makeArray(cls, std::move(elements)).get();
}
Object makeWithContentsOfFile(id cls, Object path) {
  if (!path) return nullptr;
  std::string problem;
  const Object read = readPropertyList(Phone::current().file(text(path)), &problem);
  return isA<NSArray>(read) ? makeArray(cls, elements(read)) : nullptr;
}

Object initWithArray(Object self, Object other) {
  NSArray::of(self).elements = elementsOf(other);
  return self;
}
Object initWithObjects(Object self, const id* objects, unsigned long count) {
  NSArray::of(self).elements = elementsFrom(objects, count);
  return self;
}

unsigned long count(Object self) {
  return elements(self).size();
}
Object objectAtIndex(Object self, unsigned long index) {
  requireIndex(self, "objectAtIndex:", index);
  return elements(self)[index];
}
Object objectAtIndexedSubscript(Object self, unsigned long index) {
  requireIndex(self, "objectAtIndexedSubscript:", index);
  return elements(self)[index];
}
Object firstObject(Object self) {
  return elements(self).empty() ? nullptr : elements(self).front().get();
}
Object lastObject(Object self) {
  return elements(self).empty() ? nullptr : elements(self).back().get();
}
bool containsObject(Object self, Object wanted) {
  return indexOf(NSArray::of(self), wanted) != NSNotFound;
}
unsigned long indexOfObject(Object self, Object wanted) {
  return indexOf(NSArray::of(self), wanted);
}
unsigned long indexOfObjectIdenticalTo(Object self, Object wanted) {
  const Elements& all = elements(self);
  for (unsigned long i = 0; i < all.size(); ++i)
    if (all[i].get() == wanted) return i;
  return NSNotFound;
}

using Visitor = objc::Block<void(Object, unsigned long, bool*)>;

void enumerateObjects(Object self, Visitor visit) {
  const Elements all = elements(self);
  bool stop = false;
  for (unsigned long i = 0; i < all.size() && !stop; ++i) visit(all[i], i, &stop);
}

void makeObjectsPerformSelector(Object self, SEL selector) {
  const Elements all = elements(self);
  for (const Strong<Object>& element : all)
    objc::send<id, "performSelector:">(Object(element), selector);
}

bool isEqual(Object self, Object other) {
  const NSArray* its = stateOf<NSArray>(other);
  if (its == nullptr || its->elements.size() != count(self)) return false;
  for (unsigned long i = 0; i < count(self); ++i) {
    if (!objc::send<bool, "isEqual:">(elements(self)[i].get(), its->elements[i].get()))
      return false;
  }
  return true;
}

void addFactories(StandIn<NSArray>& standIn) {
  standIn.factory<"array", &makeEmpty>()
      .factory<"arrayWithObject:", &makeWithObject>()
      .factory<"arrayWithArray:", &makeWithArray>()
      .factory<"arrayWithObjects:count:", &makeWithObjects>()
      .factory<"arrayWithContentsOfFile:", &makeWithContentsOfFile>()
      .method<"initWithArray:", &initWithArray>()
      .method<"initWithObjects:count:", &initWithObjects>();
  addVariadic<&makeWithList>({NSArray::cls(), '+', "arrayWithObjects:", "@@:@"});
}

void addReading(StandIn<NSArray>& standIn) {
  standIn.method<"count", &count>()
      .method<"objectAtIndex:", &objectAtIndex>()
      .method<"objectAtIndexedSubscript:", &objectAtIndexedSubscript>()
      .method<"firstObject", &firstObject>()
      .method<"lastObject", &lastObject>()
      .method<"containsObject:", &containsObject>()
      .method<"indexOfObject:", &indexOfObject>()
      .method<"indexOfObjectIdenticalTo:", &indexOfObjectIdenticalTo>()
      .partial<"enumerateObjectsUsingBlock:", &enumerateObjects>(
          "changing the array meanwhile is not noticed: the elements at the start are visited")
      .method<"makeObjectsPerformSelector:", &makeObjectsPerformSelector>();
}

}  // namespace

void requireIndex(Object array, const char* selector, unsigned long index) {
  const unsigned long size = elements(array).size();
  if (index < size) return;
  const std::string bounds =
      size == 0 ? "for empty array" : "[0 .. " + std::to_string(size - 1) + "]";
  raiseException("NSRangeException", "*** " + methodName(array, selector) + ": index " +
                                         std::to_string(index) + " beyond bounds " + bounds);
}

const Elements& elementsOf(Object array) {
  static const Elements none;
  if (!array) return none;
  if (const NSArray* state = stateOf<NSArray>(array)) return state->elements;
  raiseException("NSInvalidArgumentException", "an array is needed, not " + description(array));
}

Object makeArray(id cls, Elements elements) {
  Strong<Object> array = makeOf(cls);
  NSArray::of(array.get()).elements = std::move(elements);
  return autorelease(std::move(array));
}

void addElement(Elements& elements, Object element) {
  requireElement("NSArray", element, elements.size());
  elements.push_back(objc::retain(element));
}

unsigned long indexOf(const NSArray& array, Object wanted) {
  for (unsigned long i = 0; wanted && i < array.elements.size(); ++i) {
    const Object element = array.elements[i];
    if (element == wanted || objc::send<bool, "isEqual:">(element, wanted)) return i;
  }
  return NSNotFound;
}

void NSArray::registerClass() {
  StandIn<NSArray> standIn("Foundation", "NSArray", "NSObject");
  addFactories(standIn);
  addReading(standIn);
  addDerivedArrays(standIn);
  standIn.method<"isEqual:", &isEqual>()
      .method<"isEqualToArray:", &isEqual>()
      .method<"hash", &count>()
      .method<"copyWithZone:", &shareAsCopy>()
      .method<"mutableCopyWithZone:", &copyAs<NSMutableArray, NSArray, &NSArray::elements>>()
      .partial<"writeToFile:atomically:", &writeToPhone>("always atomic and binary")
      .method<"description", &collectionDescription>()
      .finish();
}

}  // namespace sim
