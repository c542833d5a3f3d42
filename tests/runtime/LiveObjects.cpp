#include "simulator/runtime/LiveObjects.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "TestClasses.h"

using namespace testing_runtime;
using namespace sim::runtime;

namespace {

TEST(LiveObjects, listsInstancesOfExactlyTheClass) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  id first = make(base);
  id second = make(base);
  id other = make(derived);
  const std::vector<id> found = liveInstances(base);
  EXPECT_EQ(found.size(), 2u);
  EXPECT_EQ(std::count(found.begin(), found.end(), first), 1);
  EXPECT_EQ(std::count(found.begin(), found.end(), second), 1);
  EXPECT_EQ(liveInstanceCount(derived), 1u);
  for (id object : {first, second, other}) {
    objc_release(object);
  }
  EXPECT_TRUE(liveInstances(base).empty());
}

TEST(LiveObjects, countsByClassInOrderOfName) {
  Class b = makeClass("CountB");
  Class a = makeClass("CountA");
  id objects[] = {make(b), make(a), make(b)};
  const std::vector<LiveCount> counts = liveInstanceCounts();
  const auto countOf = [&](Class cls) {
    const auto found = std::find_if(counts.begin(), counts.end(),
                                    [&](const LiveCount& count) { return count.cls == cls; });
    return found != counts.end() ? found->count : 0;
  };
  EXPECT_EQ(countOf(a), 1u);
  EXPECT_EQ(countOf(b), 2u);
  EXPECT_TRUE(std::is_sorted(counts.begin(), counts.end(), [](const auto& left, const auto& right) {
    return std::strcmp(class_getName(left.cls), class_getName(right.cls)) < 0;
  }));
  for (id object : objects) {
    objc_release(object);
  }
}

TEST(LiveObjects, followAChangeOfClass) {
  Class before = makeClass("Before");
  Class after = makeClass("After");
  id object = make(before);
  object_setClass(object, after);
  EXPECT_EQ(liveInstanceCount(before), 0u);
  EXPECT_EQ(liveInstanceCount(after), 1u);
  objc_release(object);
}

}  // namespace
