// What waits for a watching page.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <thread>

#include "simulator/serve/EventQueue.h"

namespace sim {
namespace {

using News = EventQueue::News;
constexpr int noSocket = -1;

TEST(EventQueues, GiveWhatCameInOnePiece) {
  EventQueue queue("me");
  queue.put("a");
  queue.put("b");
  EXPECT_EQ(queue.wait(noSocket), News::events);
  EXPECT_EQ(queue.take(), "ab");
}

TEST(EventQueues, WakeTheirReader) {
  EventQueue queue("me");
  std::thread writer([&queue] { queue.put("late"); });
  EXPECT_EQ(queue.wait(noSocket), News::events);
  EXPECT_EQ(queue.take(), "late");
  writer.join();
}

TEST(EventQueues, LetASlowReaderStartOver) {
  EventQueue queue("me");
  const std::string half(EventQueue::mostBytes / 2, 'x');
  for (int count = 0; count < 3; ++count) queue.put(half);
  EXPECT_EQ(queue.wait(noSocket), News::behind);
  queue.put("missed");
  queue.reset("whole");
  queue.put("next");
  EXPECT_EQ(queue.wait(noSocket), News::events);
  EXPECT_EQ(queue.take(), "wholenext");
}

TEST(EventQueues, TakeASnapshotOfAnySize) {
  EventQueue queue("me");
  queue.reset(std::string(3 * EventQueue::mostBytes, 'x'));
  EXPECT_EQ(queue.wait(noSocket), News::events);
}

TEST(EventQueues, NoticeThatTheirReaderIsGone) {
  std::array<int, 2> ends{};
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
  EventQueue queue("me");
  std::thread reader([&ends] { close(ends[1]); });
  EXPECT_EQ(queue.wait(ends[0]), News::readerGone);
  reader.join();
  close(ends[0]);
}

TEST(EventQueues, End) {
  EventQueue queue("me");
  queue.put("a");
  queue.close();
  queue.put("b");
  EXPECT_EQ(queue.wait(noSocket), News::closed);
}

}  // namespace
}  // namespace sim
