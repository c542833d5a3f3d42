#include "simulator/runtime/LiveObjects.h"

#include <algorithm>
#include <cstring>
#include <mutex>
#include <unordered_map>

#include "simulator/runtime/Instances.h"
#include "simulator/runtime/Shards.h"

namespace sim::runtime {
namespace {

struct LiveList {
  std::mutex lock;
  InstanceHeader* first = nullptr;
};

Shards<LiveList>& lists() {
  static auto* instance = new Shards<LiveList>;
  return *instance;
}

std::atomic<std::ptrdiff_t> liveBlocks;

template <class Visit>
void visitLiveObjects(Visit visit) {
  for (LiveList& list : lists()) {
    const std::lock_guard guard(list.lock);
    for (InstanceHeader* header = list.first; header != nullptr; header = header->next)
      visit(objectOf(header));
  }
}

}  // namespace

std::vector<id> liveInstances(Class cls) {
  std::vector<id> found;
  visitLiveObjects([&](id object) {
    if (object_getClass(object) == cls) found.push_back(object);
  });
  return found;
}

std::size_t liveInstanceCount(Class cls) {
  return liveInstances(cls).size();
}

bool isLiveInstance(const void* pointer) {
  const auto place = reinterpret_cast<std::uintptr_t>(pointer) - sizeof(InstanceHeader);
  const auto* wanted = reinterpret_cast<const InstanceHeader*>(place);
  LiveList& list = lists().of(wanted);
  const std::lock_guard guard(list.lock);
  const InstanceHeader* header = list.first;
  while (header != nullptr && header != wanted) header = header->next;
  return header != nullptr;
}

std::vector<LiveCount> liveInstanceCounts() {
  std::unordered_map<Class, std::size_t> byClass;
  visitLiveObjects([&](id object) { ++byClass[object_getClass(object)]; });
  std::vector<LiveCount> counts;
  counts.reserve(byClass.size());
  for (const auto& [cls, count] : byClass) counts.push_back({cls, count});
  std::sort(counts.begin(), counts.end(), [](const LiveCount& left, const LiveCount& right) {
    return std::strcmp(class_getName(left.cls), class_getName(right.cls)) < 0;
  });
  return counts;
}

std::size_t liveBlockCount() {
  return static_cast<std::size_t>(liveBlocks.load());
}

void addLiveObject(InstanceHeader& header) {
  LiveList& list = lists().of(&header);
  const std::lock_guard guard(list.lock);
  header.previous = nullptr;
  header.next = list.first;
  if (list.first != nullptr) list.first->previous = &header;
  list.first = &header;
}

void removeLiveObject(InstanceHeader& header) {
  LiveList& list = lists().of(&header);
  const std::lock_guard guard(list.lock);
  (header.previous != nullptr ? header.previous->next : list.first) = header.next;
  if (header.next != nullptr) header.next->previous = header.previous;
}

void countLiveBlocks(std::ptrdiff_t change) {
  liveBlocks.fetch_add(change);
}

}  // namespace sim::runtime
