#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "objc/Block.h"
#include "objc/Once.h"
#include "simulator/dispatch/Dispatch.h"

namespace {

TEST(DispatchOnce, RunsOnceAndLeavesThePlatformsMark) {
  dispatch_once_t predicate = 0;
  int count = 0;
  const auto work = objc::block<void()>([&count] { ++count; });
  dispatch_once(&predicate, work.get().get());
  dispatch_once(&predicate, work.get().get());
  EXPECT_EQ(count, 1);
  EXPECT_EQ(predicate, ~0l);
}

TEST(DispatchOnce, OtherThreadsWaitForTheFirst) {
  static dispatch_once_t predicate;
  static std::atomic<int> runs;
  static bool finished;  // not atomic: the guard orders the accesses
  std::atomic<int> early = 0;
  std::vector<std::thread> threads;
  for (int index = 0; index < 8; ++index) {
    threads.emplace_back([&early] {
      dispatch_once_f(&predicate, nullptr, [](void*) {
        ++runs;
        for (int turn = 0; turn < 1000; ++turn) std::this_thread::yield();
        finished = true;
      });
      if (!finished) ++early;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(early, 0);
}

TEST(DispatchOnceDeathTest, RecursionStopsTheProgram) {
  static dispatch_once_t predicate;
  const auto recurse = [](void*) { dispatch_once_f(&predicate, nullptr, [](void*) {}); };
  EXPECT_DEATH(dispatch_once_f(&predicate, nullptr, recurse), "recursively");
}

}  // namespace
