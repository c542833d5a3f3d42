// +initialize: once, superclasses first, before anything else, for all threads.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

std::vector<std::string> initialized;

void recordInitialize(id self, SEL) {
  initialized.emplace_back(class_getName(reinterpret_cast<Class>(self)));
}

class Initialize : public testing::Test {
 protected:
  void SetUp() override { initialized.clear(); }
};

TEST_F(Initialize, comesBeforeTheFirstMessageAndOnlyOnce) {
  Class cls = makeClass("Lazy");
  addClassMethod(cls, "initialize", &recordInitialize);
  EXPECT_TRUE(initialized.empty());
  send<Class>(cls, "class");
  EXPECT_EQ(initialized.size(), 1u);
  objc_release(make(cls));
  EXPECT_EQ(initialized.size(), 1u);
}

TEST_F(Initialize, superclassesComeFirst) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addClassMethod(base, "initialize", &recordInitialize);
  addClassMethod(derived, "initialize", &recordInitialize);
  objc_release(make(derived));
  EXPECT_EQ(initialized, (std::vector<std::string>{class_getName(base), class_getName(derived)}));
}

TEST_F(Initialize, anInheritedOneRunsForTheSubclassToo) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addClassMethod(base, "initialize", &recordInitialize);
  objc_release(make(derived));
  EXPECT_EQ(initialized, (std::vector<std::string>{class_getName(base), class_getName(derived)}));
}

TEST_F(Initialize, comesBeforeAMessageToAnInstanceMadeWithoutMessages) {
  Class cls = makeClass("Quiet");
  addClassMethod(cls, "initialize", &recordInitialize);
  id object = class_createInstance(cls, 0);
  EXPECT_TRUE(initialized.empty());
  send<id>(object, "self");
  EXPECT_EQ(initialized.size(), 1u);
  objc_release(object);
}

TEST_F(Initialize, lookingAClassUpDoesNotSendIt) {
  Class cls = makeClass("Quiet");
  addClassMethod(cls, "initialize", &recordInitialize);
  objc_getClass(class_getName(cls));
  class_respondsToSelector(cls, sel("self"));
  class_getInstanceMethod(cls, sel("self"));
  class_conformsToProtocol(cls, objc_getProtocol("NSObject"));
  EXPECT_TRUE(initialized.empty());
  class_getMethodImplementation(cls, sel("self"));
  EXPECT_EQ(initialized.size(), 1u);
}

id createdInside = nullptr;
void initializeWithMessages(id self, SEL) {
  createdInside = objc_alloc_init(reinterpret_cast<Class>(self));
}

TEST_F(Initialize, mayMessageItsOwnClass) {
  Class cls = makeClass("Selfish");
  addClassMethod(cls, "initialize", &initializeWithMessages);
  send<Class>(cls, "class");
  EXPECT_EQ(object_getClass(createdInside), cls);
  objc_release(createdInside);
}

TEST_F(Initialize, aRootClassNeedsNone) {
  Class root = makeClass("Bare", nullptr);
  addClassMethod(
      root, "number", +[](id, SEL) { return 5; });
  EXPECT_EQ(send<int>(root, "number"), 5);
}

std::atomic<int> started;
std::atomic<bool> isInitialized;
std::atomic<int> sawUnfinished;
std::atomic<std::thread::id> initializer;

void slowInitialize(id self, SEL) {
  ++started;
  initializer = std::this_thread::get_id();
  // Must not open a short cut for the other threads.
  send(self, "check");
  // Long enough for the other threads to come: they must be found waiting, not running.
  std::this_thread::sleep_for(std::chrono::milliseconds(30));
  isInitialized = true;
}
void check(id, SEL) {
  if (!isInitialized && initializer.load() != std::this_thread::get_id()) {
    ++sawUnfinished;
  }
}

TEST_F(Initialize, otherThreadsWaitForItsEnd) {
  started = 0;
  isInitialized = false;
  sawUnfinished = 0;
  Class cls = makeClass("Shared");
  addClassMethod(cls, "initialize", &slowInitialize);
  addClassMethod(cls, "check", &check);
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([cls] { send(cls, "check"); });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(started, 1);
  EXPECT_EQ(sawUnfinished, 0);
}

Class innermost;

// Reaches a subclass from inside: that is ready for this thread alone.
void initializeThroughASubclass(id self, SEL) {
  send(innermost, "check");
  slowInitialize(self, nullptr);
  send(innermost, "check");
}

TEST_F(Initialize, otherThreadsWaitForItsEndThroughASubclassToo) {
  started = 0;
  isInitialized = false;
  sawUnfinished = 0;
  Class cls = makeClass("Shared");
  innermost = makeClass("Inner", makeClass("Between", cls));
  addClassMethod(class_getSuperclass(innermost), "initialize", &recordInitialize);
  addClassMethod(innermost, "initialize", &recordInitialize);
  addClassMethod(cls, "initialize", &initializeThroughASubclass);
  addClassMethod(cls, "check", &check);
  initializer = std::this_thread::get_id();
  std::thread first([cls] {
    initializer = std::this_thread::get_id();
    send<Class>(cls, "class");
  });
  while (started == 0) std::this_thread::yield();
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([] { send(innermost, "check"); });
  }
  for (std::thread& thread : threads) thread.join();
  first.join();
  EXPECT_EQ(started, 1);
  EXPECT_EQ(sawUnfinished, 0);
  EXPECT_EQ(initialized, (std::vector<std::string>{class_getName(class_getSuperclass(innermost)),
                                                   class_getName(innermost)}));
}

}  // namespace
