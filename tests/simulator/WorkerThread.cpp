#include "simulator/machine/WorkerThread.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>

namespace sim {
namespace {

TEST(WorkerThread, HasFinishedWhenTheCallReturns) {
  std::thread::id worker;
  runOnWorkerThread([&worker] { worker = std::this_thread::get_id(); });
  EXPECT_NE(worker, std::thread::id());
  EXPECT_NE(worker, std::this_thread::get_id());
}

TEST(WorkerThread, HandsWorkToTheWaitingThreadInOrder) {
  const auto main = std::this_thread::get_id();
  std::string order;
  runOnWorkerThread([&order, main] {
    order += "a";
    runOnMainThread([&order, main] { order += std::this_thread::get_id() == main ? "M" : "?"; });
    order += "b";
    runOnMainThread([&order, main] { order += std::this_thread::get_id() == main ? "M" : "?"; });
  });
  EXPECT_EQ(order, "aMbM");
}

TEST(WorkerThread, GivesItsExceptionToTheCaller) {
  EXPECT_THROW(runOnWorkerThread([] { throw std::runtime_error("no"); }), std::runtime_error);
}

}  // namespace
}  // namespace sim
