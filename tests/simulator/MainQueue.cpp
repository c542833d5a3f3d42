#include "simulator/machine/MainQueue.h"

#include <latch>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "objc/Ownership.h"
#include "tests/simulator/TestPhone.h"

namespace sim {
namespace {

class MainQueueTest : public MachineTest {
 protected:
  MainQueue::Task note(std::string name) {
    return [this, name] { ran.push_back(name + "@" + std::to_string(phone.clock.uptime())); };
  }
  using Names = std::vector<std::string>;
  Names ran;
};

TEST_F(MainQueueTest, RunsByDueTimeThenByArrival) {
  phone.queue.add(20, note("late"));
  phone.queue.add(10, note("first"));
  phone.queue.add(10, note("second"));
  phone.queue.runUntil(30);
  EXPECT_EQ(ran, (Names{"first@10", "second@10", "late@20"}));
  EXPECT_EQ(phone.clock.uptime(), 30);
}

TEST_F(MainQueueTest, LeavesWhatIsDueLater) {
  phone.queue.add(10, note("now"));
  phone.queue.add(11, note("later"));
  phone.queue.runUntil(10);
  EXPECT_EQ(ran, Names{"now@10"});
  EXPECT_EQ(phone.queue.nextDue(), 11);
}

TEST_F(MainQueueTest, AnEntryAddedByAnEntryRunsAfterIt) {
  phone.queue.add(10, [this] {
    phone.queue.addNow(note("inner"));
    note("outer")();
  });
  phone.queue.add(10, note("next"));
  phone.queue.runUntil(10);
  EXPECT_EQ(ran, (Names{"outer@10", "next@10", "inner@10"}));
}

TEST_F(MainQueueTest, APastDueTimeMeansNowAndDoesNotOvertake) {
  phone.queue.runUntil(100);
  phone.queue.addNow(note("waiting"));
  phone.queue.add(5, note("past"));
  phone.queue.runDue();
  EXPECT_EQ(ran, (Names{"waiting@100", "past@100"}));
}

TEST_F(MainQueueTest, TimeNeverGoesBackwards) {
  phone.queue.runUntil(100);
  phone.queue.runUntil(50);
  EXPECT_EQ(phone.clock.uptime(), 100);
}

TEST_F(MainQueueTest, ACancelledEntryDoesNotRun) {
  const auto ticket = phone.queue.add(10, note("cancelled"));
  phone.queue.add(10, note("kept"));
  phone.queue.cancel(ticket);
  phone.queue.runUntil(10);
  EXPECT_EQ(ran, Names{"kept@10"});
}

TEST_F(MainQueueTest, CancellingWhatHasRunOrIsUnknownDoesNothing) {
  const auto ticket = phone.queue.add(10, note("done"));
  phone.queue.runUntil(10);
  phone.queue.cancel(ticket);
  phone.queue.cancel(ticket + 100);
  EXPECT_NE(phone.queue.addNow(note("new")), ticket);
  phone.queue.runDue();
  EXPECT_EQ(ran, (Names{"done@10", "new@10"}));
}

TEST_F(MainQueueTest, AnEntryMayCancelTheNext) {
  MainQueue::Ticket next = 0;
  phone.queue.add(10, [this, &next] { phone.queue.cancel(next); });
  next = phone.queue.add(10, note("next"));
  phone.queue.runUntil(10);
  EXPECT_EQ(ran, Names{});
}

TEST_F(MainQueueTest, CapturesOfACancelledEntryMayCancelOthers) {
  struct Canceller {
    MainQueue& queue;
    MainQueue::Ticket other;
    ~Canceller() { queue.cancel(other); }
  };
  const auto other = phone.queue.add(10, note("other"));
  auto capture = std::shared_ptr<Canceller>(new Canceller{phone.queue, other});
  const auto ticket = phone.queue.add(10, [capture] {});
  capture.reset();
  phone.queue.cancel(ticket);
  phone.queue.runUntil(10);
  EXPECT_EQ(ran, Names{});
}

TEST_F(MainQueueTest, ThreadsMayAddAndCancel) {
  int count = 0;
  std::latch start(4);  // or the first would be done before the last begins
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([this, &count, &start] {
      start.arrive_and_wait();
      for (int entry = 0; entry < 1000; ++entry) {
        phone.queue.addNow([&count] { ++count; });
        phone.queue.cancel(phone.queue.addNow([&count] { count += 1'000'000; }));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  phone.queue.runDue();
  EXPECT_EQ(count, 4000);
}

TEST_F(MainQueueTest, AnEntrysAutoreleasedObjectsDieWithIt) {
  auto probe = objc::adopt(objc::Object(objc_alloc_init(objc_getClass("NSObject"))));
  const auto weak = objc::weak(probe.get());
  phone.queue.add(1, [&probe] { objc::autorelease(std::move(probe)); });
  phone.queue.add(2, [this, &weak] { note(weak.load() ? "alive" : "dead")(); });
  phone.queue.runUntil(2);
  EXPECT_EQ(ran, Names{"dead@2"});
}

// What a task holds may ask for more as it ends.
TEST_F(MainQueueTest, ClearForgetsAlsoWhatIsAddedMeanwhile) {
  std::shared_ptr<void> held(nullptr, [this](void*) { phone.queue.add(10, note("more")); });
  phone.queue.add(10, [kept = std::move(held)] {});
  phone.queue.clear();
  phone.queue.runUntil(20);
  EXPECT_EQ(ran, Names());
}

// As a timer does that ends with the phone, after the entry that it waits for has gone.
TEST_F(MainQueueTest, ATicketOfBeforeClearCancelsNothing) {
  const MainQueue::Ticket gone = phone.queue.add(10, note("gone"));
  MainQueue::Ticket goneMeanwhile = 0;
  std::shared_ptr<void> held(nullptr, [&](void*) { phone.queue.cancel(goneMeanwhile); });
  phone.queue.add(10, [kept = std::move(held)] {});
  goneMeanwhile = phone.queue.add(20, note("gone meanwhile"));
  phone.queue.clear();
  phone.queue.add(10, note("added since"));
  phone.queue.cancel(gone);
  phone.queue.runUntil(20);
  EXPECT_EQ(ran, Names{"added since@10"});
}

}  // namespace
}  // namespace sim
