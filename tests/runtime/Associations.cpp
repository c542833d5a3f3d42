#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "TestClasses.h"
#include "simulator/runtime/LiveObjects.h"

using namespace testing_runtime;
using sim::runtime::liveInstanceCount;

namespace {

const char keys[2] = {};

std::size_t countOf(id object) {
  return send<std::size_t>(object, "retainCount");
}

id lastCopy = nullptr;
id copyWithZone(id self, SEL, void*) {
  return lastCopy = make(object_getClass(self));
}

class Associations : public testing::TestWithParam<objc_AssociationPolicy> {
 protected:
  void SetUp() override {
    addMethod(valueClass_, "copyWithZone:", &copyWithZone, "@@:^v");
    pool_ = objc_autoreleasePoolPush();
  }
  void TearDown() override {
    objc_release(value_);
    objc_release(object_);
    objc_autoreleasePoolPop(pool_);
    EXPECT_EQ(liveInstanceCount(valueClass_), 0u);
  }

  void* pool_ = nullptr;
  Class valueClass_ = makeClass("Value");
  id object_ = make(rootClass());
  id value_ = make(valueClass_);
};

TEST_P(Associations, followTheirPolicy) {
  const objc_AssociationPolicy policy = GetParam();
  const bool copies = policy == OBJC_ASSOCIATION_COPY || policy == OBJC_ASSOCIATION_COPY_NONATOMIC;
  const bool retains =
      policy == OBJC_ASSOCIATION_RETAIN || policy == OBJC_ASSOCIATION_RETAIN_NONATOMIC;
  objc_setAssociatedObject(object_, &keys[0], value_, policy);
  EXPECT_EQ(countOf(value_), retains ? 2u : 1u);
  EXPECT_EQ(objc_getAssociatedObject(object_, &keys[0]), copies ? lastCopy : value_);
  EXPECT_EQ(objc_getAssociatedObject(object_, &keys[1]), nullptr);
}

TEST_P(Associations, endWithNil) {
  objc_setAssociatedObject(object_, &keys[0], value_, GetParam());
  objc_setAssociatedObject(object_, &keys[0], nullptr, GetParam());
  EXPECT_EQ(objc_getAssociatedObject(object_, &keys[0]), nullptr);
  EXPECT_EQ(countOf(value_), 1u);
  EXPECT_EQ(liveInstanceCount(valueClass_), 1u);
}

TEST_P(Associations, endWithTheObject) {
  id owner = make(rootClass());
  objc_setAssociatedObject(owner, &keys[0], value_, GetParam());
  objc_release(owner);
  EXPECT_EQ(countOf(value_), 1u);
  EXPECT_EQ(liveInstanceCount(valueClass_), 1u);
}

TEST_P(Associations, atomicOnesOutliveTheirReplacementUntilThePoolEnds) {
  objc_setAssociatedObject(object_, &keys[0], value_, GetParam());
  void* pool = objc_autoreleasePoolPush();
  id loaded = objc_getAssociatedObject(object_, &keys[0]);
  const std::size_t before = countOf(loaded);
  objc_autoreleasePoolPop(pool);
  const bool atomic = GetParam() == OBJC_ASSOCIATION_RETAIN || GetParam() == OBJC_ASSOCIATION_COPY;
  EXPECT_EQ(countOf(loaded), atomic ? before - 1 : before);
}

INSTANTIATE_TEST_SUITE_P(Policies, Associations,
                         testing::Values(OBJC_ASSOCIATION_ASSIGN, OBJC_ASSOCIATION_RETAIN_NONATOMIC,
                                         OBJC_ASSOCIATION_COPY_NONATOMIC, OBJC_ASSOCIATION_RETAIN,
                                         OBJC_ASSOCIATION_COPY));

TEST(AssociationsOfOneObject, areReplacedPerKey) {
  Class cls = makeClass("Value");
  id object = make(rootClass());
  id first = make(cls);
  id second = make(cls);
  objc_setAssociatedObject(object, &keys[0], first, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  objc_setAssociatedObject(object, &keys[1], first, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  objc_setAssociatedObject(object, &keys[0], second, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  EXPECT_EQ(countOf(first), 2u);
  EXPECT_EQ(objc_getAssociatedObject(object, &keys[0]), second);
  EXPECT_EQ(objc_getAssociatedObject(object, &keys[1]), first);
  objc_removeAssociatedObjects(object);
  EXPECT_EQ(objc_getAssociatedObject(object, &keys[1]), nullptr);
  for (id value : {first, second}) {
    EXPECT_EQ(countOf(value), 1u);
    objc_release(value);
  }
  objc_release(object);
}

TEST(AssociationsOfOneObject, mayBeOfAClass) {
  id cls = reinterpret_cast<id>(makeClass("Owner"));
  id value = make(rootClass());
  objc_setAssociatedObject(cls, &keys[0], value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  objc_release(value);
  EXPECT_EQ(objc_getAssociatedObject(cls, &keys[0]), value);
  objc_removeAssociatedObjects(cls);
}

TEST(AssociationsOfOneObject, nilHasNone) {
  objc_setAssociatedObject(nullptr, &keys[0], nullptr, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  EXPECT_EQ(objc_getAssociatedObject(nullptr, &keys[0]), nullptr);
  objc_removeAssociatedObjects(nullptr);
}

TEST(AssociationsDeathTest, ofNilWithAValueAreFatal) {
  id value = make(makeClass("Value"));
  EXPECT_DEATH(
      objc_setAssociatedObject(nullptr, &keys[0], value, OBJC_ASSOCIATION_RETAIN_NONATOMIC),
      "objc_setAssociatedObject: the object is nil, its value would be an instance of Value");
  objc_release(value);
}

id associatedInDealloc;
Class endingClass;
void deallocThatLooks(id self, SEL) {
  associatedInDealloc = objc_getAssociatedObject(self, &keys[0]);
  objc_super toSuper{self, endingClass};
  reinterpret_cast<void (*)(objc_super*, SEL)> (&objc_msgSendSuper2)(&toSuper, sel("dealloc"));
}

TEST(AssociationsOfOneObject, areStillThereInDealloc) {
  endingClass = makeClass("Ending");
  addMethod(endingClass, "dealloc", &deallocThatLooks);
  id object = make(endingClass);
  id value = make(rootClass());
  objc_setAssociatedObject(object, &keys[0], value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  objc_release(object);
  EXPECT_EQ(associatedInDealloc, value);
  EXPECT_EQ(countOf(value), 1u);
  objc_release(value);
}

TEST(AssociationsOfOneObject, threadsMayReplaceWhatOthersRead) {
  Class cls = makeClass("Value");
  id object = make(rootClass());
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([object, cls] {
      for (int round = 0; round < 1000; ++round) {
        void* pool = objc_autoreleasePoolPush();
        id value = make(cls);
        objc_setAssociatedObject(object, &keys[0], value, OBJC_ASSOCIATION_RETAIN);
        objc_release(value);
        EXPECT_EQ(object_getClass(objc_getAssociatedObject(object, &keys[0])), cls);
        objc_autoreleasePoolPop(pool);
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  objc_release(object);
  EXPECT_EQ(liveInstanceCount(cls), 0u);
}

}  // namespace
