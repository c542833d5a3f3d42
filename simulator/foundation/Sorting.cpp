#include "simulator/foundation/Sorting.h"

#include <algorithm>

#include "simulator/runtime/Send.h"

namespace sim {
namespace {

template <class Compare>
void sort(ObjectList& elements, Compare compare) {
  std::stable_sort(elements.begin(), elements.end(),
                   [&](const auto& left, const auto& right) { return compare(left, right) < 0; });
}

}  // namespace

ObjectList sorted(ObjectList elements, SEL compare) {
  sort(elements, [compare](objc::Object left, objc::Object right) {
    return sim::runtime::send<long>(left.get(), compare, right.get());
  });
  return elements;
}

ObjectList sorted(ObjectList elements, Comparator comparator) {
  sort(elements, comparator);
  return elements;
}

}  // namespace sim
