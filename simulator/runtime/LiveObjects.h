// Which objects exist: for assertions that a scenario leaves none behind. Always on; costs an
// uncontended lock per object made or freed.
#pragma once

#include <cstddef>
#include <vector>

#include "objc/runtime.h"

namespace sim::runtime {

struct InstanceHeader;

struct LiveCount {
  Class cls;
  std::size_t count;
};

// Instances of exactly this class, in no particular order; not retained, so the list is good
// only while nobody releases them. Objects in dealloc count until they are freed.
std::vector<id> liveInstances(Class cls);
std::size_t liveInstanceCount(Class cls);

// Whatever the pointer leads to, it is not read. Walks a share of all objects.
bool isLiveInstance(const void* pointer);

// All classes that have instances, by name. Walks all objects.
std::vector<LiveCount> liveInstanceCounts();

// Blocks that _Block_copy put on the heap and that are not freed yet. Blocks that are built there
// by hand, as objc::block does, are not known to the runtime.
std::size_t liveBlockCount();

// For the runtime itself.
void addLiveObject(InstanceHeader& header);
void removeLiveObject(InstanceHeader& header);
void countLiveBlocks(std::ptrdiff_t change);

}  // namespace sim::runtime
