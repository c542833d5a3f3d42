#include "simulator/runtime/ClassChanges.h"

#include <atomic>

namespace sim::runtime {
namespace {

std::atomic<ClassChangeObserver> currentObserver{nullptr};

}  // namespace

ClassChangeObserver observeClassChanges(ClassChangeObserver observer) {
  return currentObserver.exchange(observer);
}

void reportClassChange(const ClassChange& change) {
  if (const ClassChangeObserver observer = currentObserver) observer(change);
}

}  // namespace sim::runtime
