#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "TestClasses.h"
#include "simulator/runtime/LiveObjects.h"

using namespace testing_runtime;
using sim::runtime::liveInstanceCount;

namespace {

std::size_t countOf(id object) {
  return send<std::size_t>(object, "retainCount");
}

TEST(ReferenceCounts, retainAndReleaseBalance) {
  Class cls = makeClass("Counted");
  id object = make(cls);
  EXPECT_EQ(countOf(object), 1u);
  EXPECT_EQ(objc_retain(object), object);
  EXPECT_EQ(send<id>(object, "retain"), object);
  EXPECT_EQ(countOf(object), 3u);
  objc_release(object);
  send(object, "release");
  EXPECT_EQ(countOf(object), 1u);
  EXPECT_EQ(liveInstanceCount(cls), 1u);
  objc_release(object);
  EXPECT_EQ(liveInstanceCount(cls), 0u);
}

TEST(ReferenceCounts, nilIsFine) {
  EXPECT_EQ(objc_retain(nullptr), nullptr);
  objc_release(nullptr);
  EXPECT_EQ(objc_autorelease(nullptr), nullptr);
  EXPECT_EQ(objc_retainAutorelease(nullptr), nullptr);
  EXPECT_EQ(object_dispose(nullptr), nullptr);
}

std::vector<std::string> deallocs;
Class deallocBase;
Class deallocDerived;

void callSuperDealloc(id self, Class current) {
  objc_super toSuper{self, current};
  reinterpret_cast<void (*)(objc_super*, SEL)> (&objc_msgSendSuper2)(&toSuper, sel("dealloc"));
}
void deallocOfBase(id self, SEL) {
  deallocs.emplace_back("base");
  callSuperDealloc(self, deallocBase);
}
void deallocOfDerived(id self, SEL) {
  deallocs.emplace_back("derived");
  callSuperDealloc(self, deallocDerived);
}

TEST(ReferenceCounts, deallocGoesUpTheChain) {
  deallocs.clear();
  deallocBase = makeClass("Base");
  deallocDerived = makeClass("Derived", deallocBase);
  addMethod(deallocBase, "dealloc", &deallocOfBase);
  addMethod(deallocDerived, "dealloc", &deallocOfDerived);
  objc_release(make(deallocDerived));
  EXPECT_EQ(deallocs, (std::vector<std::string>{"derived", "base"}));
  EXPECT_EQ(liveInstanceCount(deallocDerived), 0u);
}

std::size_t countInDealloc;
void revive(id self, SEL) {
  deallocs.emplace_back("dealloc");
  objc_release(objc_retain(self));
  countInDealloc = countOf(self);
  callSuperDealloc(self, deallocBase);
}

TEST(ReferenceCounts, retainingInDeallocDoesNotReviveOrRepeat) {
  deallocs.clear();
  deallocBase = makeClass("Reviving");
  addMethod(deallocBase, "dealloc", &revive);
  objc_release(make(deallocBase));
  EXPECT_EQ(deallocs.size(), 1u);
  EXPECT_EQ(countInDealloc, 0u);
}

TEST(ReferenceCounts, disposeSkipsDealloc) {
  deallocs.clear();
  deallocBase = makeClass("Disposed");
  addMethod(deallocBase, "dealloc", &deallocOfBase);
  EXPECT_EQ(object_dispose(make(deallocBase)), nullptr);
  EXPECT_TRUE(deallocs.empty());
  EXPECT_EQ(liveInstanceCount(deallocBase), 0u);
}

int retains;
int releases;
int autoreleases;
id overriddenRetain(id self, SEL) {
  ++retains;
  return self;
}
void overriddenRelease(id, SEL) {
  ++releases;
}
id overriddenAutorelease(id self, SEL) {
  ++autoreleases;
  return self;
}

TEST(ReferenceCounts, overridesAreHonouredInSubclassesMadeBefore) {
  retains = releases = autoreleases = 0;
  Class base = makeClass("Base");
  id object = make(makeClass("Derived", base));
  objc_release(objc_retain(object));
  addMethod(base, "retain", &overriddenRetain, "@@:");
  addMethod(base, "release", &overriddenRelease);
  addMethod(base, "autorelease", &overriddenAutorelease, "@@:");
  objc_retain(object);
  objc_release(object);
  objc_autorelease(object);
  objc_retainAutorelease(object);
  EXPECT_EQ(retains, 2);
  EXPECT_EQ(releases, 1);
  EXPECT_EQ(autoreleases, 2);
  object_dispose(object);
}

TEST(ReferenceCounts, overridesAreHonouredInSubclassesMadeLater) {
  retains = 0;
  Class base = makeClass("Base");
  addMethod(base, "retain", &overriddenRetain, "@@:");
  id object = make(makeClass("Derived", base));
  objc_retain(object);
  EXPECT_EQ(retains, 1);
  objc_release(object);
}

TEST(ReferenceCounts, threadsLoseNothing) {
  Class cls = makeClass("Shared");
  id object = make(cls);
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([object] {
      for (int round = 0; round < 10000; ++round) {
        objc_retain(object);
        objc_release(object);
      }
      objc_retain(object);
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(countOf(object), 9u);
  for (int i = 0; i < 9; ++i) {
    objc_release(object);
  }
  EXPECT_EQ(liveInstanceCount(cls), 0u);
}

void releaseTwice(id object) {
  objc_release(object);
  // At once: the memory must not have been used again.
  objc_release(object);
}

TEST(ReferenceCountsDeathTest, releasingAFreedObjectIsFatal) {
  id object = make(makeClass("Freed"));
  EXPECT_DEATH(releaseTwice(object), "released after it had been freed|heap-use-after-free");
  objc_release(object);
}

}  // namespace
