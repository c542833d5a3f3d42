#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "TestClasses.h"
#include "simulator/runtime/LiveObjects.h"

using namespace testing_runtime;

namespace {

std::size_t countOf(id object) {
  return send<std::size_t>(object, "retainCount");
}

// +0, and without leaving the object in a pool.
id peek(id* weak) {
  id object = objc_loadWeakRetained(weak);
  objc_release(object);
  return object;
}

id garbage() {
  return reinterpret_cast<id>(0x1234);
}

TEST(WeakReferences, readNilAfterTheEnd) {
  id object = make(rootClass());
  id weak = garbage();
  EXPECT_EQ(objc_initWeak(&weak, object), object);
  EXPECT_EQ(peek(&weak), object);
  EXPECT_EQ(countOf(object), 1u);
  objc_release(object);
  EXPECT_EQ(peek(&weak), nullptr);
  EXPECT_EQ(weak, nullptr);
  objc_destroyWeak(&weak);
}

TEST(WeakReferences, loadRetainedAddsAReference) {
  id object = make(rootClass());
  id weak = garbage();
  objc_initWeak(&weak, object);
  EXPECT_EQ(objc_loadWeakRetained(&weak), object);
  EXPECT_EQ(countOf(object), 2u);
  objc_release(object);
  objc_release(object);
  objc_destroyWeak(&weak);
}

TEST(WeakReferences, loadKeepsTheObjectUntilThePoolEnds) {
  id object = make(rootClass());
  id weak = garbage();
  objc_initWeak(&weak, object);
  void* pool = objc_autoreleasePoolPush();
  EXPECT_EQ(objc_loadWeak(&weak), object);
  objc_release(object);
  EXPECT_EQ(weak, object);
  objc_autoreleasePoolPop(pool);
  EXPECT_EQ(weak, nullptr);
  objc_destroyWeak(&weak);
}

TEST(WeakReferences, nilIsFine) {
  id weak = garbage();
  EXPECT_EQ(objc_initWeak(&weak, nullptr), nullptr);
  EXPECT_EQ(objc_loadWeak(&weak), nullptr);
  EXPECT_EQ(objc_storeWeak(&weak, nullptr), nullptr);
  id copy = garbage();
  objc_copyWeak(&copy, &weak);
  EXPECT_EQ(copy, nullptr);
  id moved = garbage();
  objc_moveWeak(&moved, &weak);
  EXPECT_EQ(moved, nullptr);
  objc_destroyWeak(&weak);
}

TEST(WeakReferences, storeChangesWhatIsReferredTo) {
  id first = make(rootClass());
  id second = make(rootClass());
  id weak = garbage();
  objc_initWeak(&weak, first);
  EXPECT_EQ(objc_storeWeak(&weak, second), second);
  objc_release(first);
  EXPECT_EQ(peek(&weak), second);
  objc_release(second);
  EXPECT_EQ(peek(&weak), nullptr);
  objc_destroyWeak(&weak);
}

TEST(WeakReferences, storingNilForgetsTheObject) {
  id object = make(rootClass());
  id weak = garbage();
  objc_initWeak(&weak, object);
  objc_storeWeak(&weak, nullptr);
  EXPECT_EQ(peek(&weak), nullptr);
  objc_release(object);
  objc_destroyWeak(&weak);
}

TEST(WeakReferences, destroyedOnesAreNotWritten) {
  id object = make(rootClass());
  id weak = garbage();
  objc_initWeak(&weak, object);
  objc_destroyWeak(&weak);
  weak = garbage();
  objc_release(object);
  EXPECT_EQ(weak, garbage());
}

TEST(WeakReferences, destroyingLeavesTheBits) {
  id object = make(rootClass());
  id weak = garbage();
  objc_initWeak(&weak, object);
  objc_destroyWeak(&weak);
  EXPECT_EQ(weak, object);
  objc_release(object);
  EXPECT_EQ(weak, object);
}

TEST(WeakReferences, copiesAreTrackedOnTheirOwn) {
  id object = make(rootClass());
  id weak = garbage();
  id copy = garbage();
  objc_initWeak(&weak, object);
  objc_copyWeak(&copy, &weak);
  EXPECT_EQ(countOf(object), 1u);
  objc_destroyWeak(&weak);
  EXPECT_EQ(peek(&copy), object);
  objc_release(object);
  EXPECT_EQ(copy, nullptr);
  objc_destroyWeak(&copy);
}

TEST(WeakReferences, movesLeaveTheSourceNil) {
  id object = make(rootClass());
  id from = garbage();
  id to = garbage();
  objc_initWeak(&from, object);
  objc_moveWeak(&to, &from);
  EXPECT_EQ(from, nullptr);
  EXPECT_EQ(peek(&to), object);
  from = garbage();
  objc_release(object);
  EXPECT_EQ(to, nullptr);
  EXPECT_EQ(from, garbage());
}

TEST(WeakReferences, allReferencesToOneObjectReadNil) {
  id object = make(rootClass());
  std::vector<id> weak(100);
  for (id& one : weak) {
    objc_initWeak(&one, object);
  }
  objc_release(object);
  EXPECT_EQ(weak, std::vector<id>(100));
}

TEST(WeakReferences, manyToOneObjectComeAndGoInAnyOrder) {
  id object = make(rootClass());
  id other = make(rootClass());
  constexpr std::size_t kMany = 5000;
  std::vector<id> weak(kMany);
  for (id& one : weak) objc_initWeak(&one, object);
  for (std::size_t i = 0; i < kMany; i += 2) objc_storeWeak(&weak[i], other);
  for (std::size_t i = kMany; i > 0; i -= 5) objc_destroyWeak(&weak[i - 1]);
  for (std::size_t i = kMany; i > 0; i -= 5) weak[i - 1] = garbage();
  objc_release(object);
  for (std::size_t i = 0; i < kMany; ++i) {
    EXPECT_EQ(weak[i], (i + 1) % 5 == 0 ? garbage() : i % 2 == 0 ? other : nullptr) << i;
  }
  objc_release(other);
  for (std::size_t i = 0; i < kMany; ++i) {
    EXPECT_EQ(weak[i], (i + 1) % 5 == 0 ? garbage() : nullptr) << i;
  }
}

TEST(WeakReferences, toClassesLastForever) {
  id cls = reinterpret_cast<id>(makeClass("Lasting"));
  id weak = garbage();
  objc_initWeak(&weak, cls);
  EXPECT_EQ(peek(&weak), cls);
  objc_destroyWeak(&weak);
}

id* watched;
id seenInDealloc;
Class watchedClass;
void deallocThatLooks(id self, SEL) {
  seenInDealloc = objc_loadWeakRetained(watched);
  objc_super toSuper{self, watchedClass};
  reinterpret_cast<void (*)(objc_super*, SEL)> (&objc_msgSendSuper2)(&toSuper, sel("dealloc"));
}

TEST(WeakReferences, loadingInDeallocGivesNil) {
  watchedClass = makeClass("Watched");
  addMethod(watchedClass, "dealloc", &deallocThatLooks);
  id object = make(watchedClass);
  id weak = garbage();
  objc_initWeak(&weak, object);
  watched = &weak;
  seenInDealloc = object;
  objc_release(object);
  EXPECT_EQ(seenInDealloc, nullptr);
  objc_destroyWeak(&weak);
}

id madeInDealloc;
void deallocThatRefers(id self, SEL) {
  objc_initWeak(&madeInDealloc, self);
}

TEST(WeakReferencesDeathTest, formingOneInDeallocIsFatal) {
  Class cls = makeClass("Ending");
  addMethod(cls, "dealloc", &deallocThatRefers);
  id object = make(cls);
  EXPECT_DEATH(objc_release(object), "cannot form a weak reference to instance .* of class Ending");
  object_dispose(object);
}

TEST(WeakReferences, loadsRaceWithTheLastRelease) {
  Class cls = makeClass("Racing");
  for (int round = 0; round < 300; ++round) {
    id object = make(cls);
    id weak = garbage();
    objc_initWeak(&weak, object);
    std::atomic<bool> wrong = false;
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i) {
      threads.emplace_back([&] {
        for (int load = 0; load < 20; ++load) {
          id loaded = objc_loadWeakRetained(&weak);
          // What was loaded is alive: it still knows its class.
          wrong = wrong || (loaded != nullptr && object_getClass(loaded) != cls);
          objc_release(loaded);
        }
      });
    }
    objc_release(object);
    for (std::thread& thread : threads) {
      thread.join();
    }
    EXPECT_FALSE(wrong);
    EXPECT_EQ(weak, nullptr);
  }
  EXPECT_EQ(sim::runtime::liveInstanceCount(cls), 0u);
}

TEST(WeakReferences, storesRaceWithStoresAndLoads) {
  Class cls = makeClass("Racing");
  id first = make(cls);
  id second = make(cls);
  id weak = garbage();
  objc_initWeak(&weak, first);
  std::atomic<bool> wrong = false;
  std::vector<std::thread> threads;
  for (id stored : {first, second, first, second}) {
    threads.emplace_back([&, stored] {
      for (int round = 0; round < 2000; ++round) {
        objc_storeWeak(&weak, stored);
        id loaded = objc_loadWeakRetained(&weak);
        wrong = wrong || (loaded != first && loaded != second);
        objc_release(loaded);
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_FALSE(wrong);
  objc_release(first);
  objc_release(second);
  EXPECT_EQ(weak, nullptr);
  EXPECT_EQ(sim::runtime::liveInstanceCount(cls), 0u);
}

}  // namespace
