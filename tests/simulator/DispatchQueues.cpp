#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "objc/Block.h"
#include "simulator/dispatch/Dispatch.h"
#include "tests/simulator/TestPhone.h"

namespace sim {
namespace {

constexpr dispatch_time_t now = DISPATCH_TIME_NOW;

class DispatchTest : public MachineTest {
 protected:
  objc::Strong<objc::Block<void()>> note(std::string name) {
    return objc::block<void()>([this, name] {
      ran.push_back(name + "@" + std::to_string(phone.clock.uptime()));
      onMain.push_back(std::this_thread::get_id() == mainThread);
    });
  }
  dispatch_queue_t background = dispatch_get_global_queue(0, 0);
  const std::thread::id mainThread = std::this_thread::get_id();
  std::vector<std::string> ran;
  std::vector<bool> onMain;
};

using Names = std::vector<std::string>;

TEST_F(DispatchTest, AsyncRunsInTheNextTurn) {
  dispatch_async(&_dispatch_main_q, note("a").get().get());
  dispatch_async(&_dispatch_main_q, note("b").get().get());
  EXPECT_EQ(ran, Names{});
  phone.queue.runDue();
  EXPECT_EQ(ran, (Names{"a@0", "b@0"}));
}

TEST_F(DispatchTest, AfterRunsAtItsTime) {
  dispatch_after(dispatch_time(now, 2000), &_dispatch_main_q, note("second").get().get());
  dispatch_after(dispatch_time(now, 1000), &_dispatch_main_q, note("first").get().get());
  dispatch_after(now, &_dispatch_main_q, note("now").get().get());
  dispatch_after(DISPATCH_TIME_FOREVER, &_dispatch_main_q, note("never").get().get());
  phone.queue.runUntil(1'000'000);
  EXPECT_EQ(ran, (Names{"now@0", "first@1000", "second@2000"}));
}

TEST_F(DispatchTest, FunctionsGetTheirContext) {
  int sum = 0;
  const auto add = [](void* context) { ++*static_cast<int*>(context); };
  dispatch_async_f(&_dispatch_main_q, &sum, add);
  dispatch_after_f(dispatch_time(now, 10), &_dispatch_main_q, &sum, add);
  dispatch_async_f(background, &sum, add);
  dispatch_sync_f(background, &sum, add);
  EXPECT_EQ(sum, 1);
  phone.queue.runUntil(10);
  EXPECT_EQ(sum, 4);
}

TEST_F(DispatchTest, BackgroundWorkRunsOnOtherThreadsInOrder) {
  dispatch_async(background, note("a").get().get());
  dispatch_async(&_dispatch_main_q, note("b").get().get());
  dispatch_async(background, note("c").get().get());
  phone.queue.runDue();
  EXPECT_EQ(ran, (Names{"a@0", "b@0", "c@0"}));
  EXPECT_EQ(onMain, (std::vector<bool>{false, true, false}));
}

TEST_F(DispatchTest, BackgroundWorkReachesTheMainThreadSynchronously) {
  dispatch_async(background, objc::block<void()>([this] {
                               dispatch_sync(&_dispatch_main_q, note("main").get().get());
                               note("background").get()();
                             })
                                 .get()
                                 .get());
  phone.queue.runDue();
  EXPECT_EQ(ran, (Names{"main@0", "background@0"}));
  EXPECT_EQ(onMain, (std::vector<bool>{true, false}));
}

TEST_F(DispatchTest, SyncOnABackgroundQueueRunsOnTheCallersThread) {
  dispatch_sync(background, note("a").get().get());
  EXPECT_EQ(onMain, std::vector<bool>{true});
}

TEST_F(DispatchTest, ABlockIsReleasedAfterItHasRun) {
  const auto probe = std::make_shared<int>(0);
  dispatch_async(&_dispatch_main_q, objc::block<void()>([probe] { ++*probe; }).get().get());
  EXPECT_EQ(probe.use_count(), 2);
  phone.queue.runDue();
  EXPECT_EQ(*probe, 1);
  EXPECT_EQ(probe.use_count(), 1);
}

using DispatchDeathTest = DispatchTest;
TEST_F(DispatchDeathTest, SyncOnTheMainQueueFromTheMainThreadStopsTheProgram) {
  EXPECT_DEATH(dispatch_sync(&_dispatch_main_q, note("never").get().get()),
               "dispatch_sync called on the main queue from the main thread");
}

}  // namespace
}  // namespace sim
