#include "simulator/foundation/NSArrayDerived.h"

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/NSRange.h"
#include "simulator/foundation/Sorting.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;
using Elements = NSArray::Elements;

// Immutable, also when it comes from a mutable array.
Object made(Elements elements) {
  return makeArray(reinterpret_cast<id>(NSArray::cls()), std::move(elements));
}

Object arrayByAddingObject(Object self, Object added) {
  Elements joined = elementsOf(self);
  addElement(joined, added);
  return made(std::move(joined));
}

Object arrayByAddingObjectsFromArray(Object self, Object added) {
  Elements joined = elementsOf(self);
  const Elements& more = elementsOf(added);
  joined.insert(joined.end(), more.begin(), more.end());
  return made(std::move(joined));
}

Object subarrayWithRange(Object self, NSRange range) {
  const Elements& all = elementsOf(self);
  if (range.location > all.size() || range.length > all.size() - range.location) {
    raiseException("NSRangeException",
                   "*** " + methodName(self, "subarrayWithRange:") + ": range {" +
                       std::to_string(range.location) + ", " + std::to_string(range.length) +
                       "} extends beyond the array's " + std::to_string(all.size()) + " elements");
  }
  const auto from = all.begin() + long(range.location);
  return made(Elements(from, from + long(range.length)));
}

Object componentsJoinedByString(Object self, Object separator) {
  std::string joined;
  for (const auto& element : elementsOf(self)) {
    if (&element != &elementsOf(self).front()) joined += text(separator);
    joined += description(element);
  }
  return string(joined);
}

Object sortedArrayUsingSelector(Object self, SEL selector) {
  return made(sorted(elementsOf(self), selector));
}

Object sortedArrayUsingComparator(Object self, Comparator comparator) {
  return made(sorted(elementsOf(self), comparator));
}

}  // namespace

void addDerivedArrays(StandIn<NSArray>& standIn) {
  standIn.method<"arrayByAddingObject:", &arrayByAddingObject>()
      .method<"arrayByAddingObjectsFromArray:", &arrayByAddingObjectsFromArray>()
      .method<"subarrayWithRange:", &subarrayWithRange>()
      .method<"componentsJoinedByString:", &componentsJoinedByString>()
      .method<"sortedArrayUsingSelector:", &sortedArrayUsingSelector>()
      .method<"sortedArrayUsingComparator:", &sortedArrayUsingComparator>();
}

}  // namespace sim
