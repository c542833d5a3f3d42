#include "simulator/dispatch/Dispatch.h"
#include "tests/simulator/TestPhone.h"

namespace sim {
namespace {

class DispatchTimeTest : public MachineTest {};

TEST_F(DispatchTimeTest, NowIsNeverZero) {
  EXPECT_NE(dispatch_time(DISPATCH_TIME_NOW, 0), DISPATCH_TIME_NOW);
}

TEST_F(DispatchTimeTest, FollowsUptime) {
  const dispatch_time_t start = dispatch_time(DISPATCH_TIME_NOW, 0);
  phone.queue.runUntil(500);
  EXPECT_EQ(dispatch_time(DISPATCH_TIME_NOW, 0), start + 500);
  EXPECT_EQ(dispatch_time(start, 7), start + 7);
  EXPECT_EQ(dispatch_time(start, -7), start - 7);
}

TEST_F(DispatchTimeTest, Saturates) {
  const dispatch_time_t start = dispatch_time(DISPATCH_TIME_NOW, 0);
  EXPECT_EQ(dispatch_time(DISPATCH_TIME_NOW, INT64_MAX), DISPATCH_TIME_FOREVER);
  EXPECT_EQ(dispatch_time(DISPATCH_TIME_FOREVER, -1), DISPATCH_TIME_FOREVER);
  EXPECT_EQ(dispatch_time(start, INT64_MIN), 1u);
}

}  // namespace
}  // namespace sim
