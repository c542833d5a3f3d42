// Things of which a process has one: guarded results, shared instances, globals.
#include <array>
#include <atomic>
#include <thread>
#include <type_traits>

#include "objc/Global.h"
#include "objc/Once.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;

std::atomic<int> made;

Owner makeSlowly() {
  ++made;
  std::this_thread::yield();
  return Probe::make<bridge::ProbeView>();
}
Owner makeAnother() {
  return Probe::make<bridge::ProbeView>();
}

struct Manager : objc::Implementation<Manager> {
  long starts;
  static Manager& sharedManager() { return shared(); }
  static Class registerClass() {
    return objc::ClassBuilder<Manager>("Manager", "NSObject")
        .classMethod<"sharedManager", &Manager::sharedManager>()
        .finish();
  }
};

struct SingleInstances : testing::Test {
  static void SetUpTestSuite() {
    ASSERT_TRUE(Probe::registerClass());
    ASSERT_TRUE(Manager::registerClass());
  }
};

TEST_F(SingleInstances, AreMadeOnceByWhateverThread) {
  std::array<id, 8> found{};
  std::array<std::thread, 8> threads;
  for (std::size_t i = 0; i < threads.size(); ++i)
    threads[i] = std::thread([&found, i] { found[i] = objc::once<makeSlowly>().get().get(); });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(made, 1);
  EXPECT_NE(found[0], nullptr);
  for (id each : found) EXPECT_EQ(each, found[0]);
}

TEST_F(SingleInstances, AreKeptApartByWhatMakesThem) {
  EXPECT_NE(objc::once<makeSlowly>().get(), objc::once<makeAnother>().get());
  EXPECT_EQ(objc::once<makeAnother>()->retainCount(), 1u);
}

TEST_F(SingleInstances, OfAClassAreItsSharedObject) {
  Manager& manager = Manager::shared();
  EXPECT_EQ(&Manager::shared(), &manager);
  EXPECT_EQ(object_getClass(manager.self()), Manager::cls());
  EXPECT_EQ(manager.starts, 0);
}

TEST_F(SingleInstances, AreReachedThroughAClassMethod) {
  EXPECT_EQ((objc::send<id, "sharedManager">(Manager::cls())), Manager::shared().self());
  Method method = class_getClassMethod(Manager::cls(), objc::selector<"sharedManager">());
  EXPECT_STREQ(method_getTypeEncoding(method), "@@:");
}

struct Registry {
  long count;
  Owner probe;
};
objc::Global<Registry> registry;

TEST_F(SingleInstances, OfGlobalsStartAsZeroes) {
  EXPECT_EQ(registry->count, 0);
  EXPECT_FALSE((*registry).probe);
  registry->count = 5;
  EXPECT_EQ((*registry).count, 5);
  static_assert(std::is_trivially_destructible_v<objc::Global<Registry>>);
}

}  // namespace
