// Who has to go when there are too many.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <vector>

#include "simulator/serve/http/Connections.h"

namespace sim {
namespace {

// Its connections have an other end that nobody looks at.
class Crowd {
 public:
  explicit Crowd(std::size_t most) : connections(most) {}
  ~Crowd() {
    for (const int each : others_) close(each);
    for (const int each : ours_) connections.remove(each);
  }
  Crowd(const Crowd&) = delete;
  Crowd& operator=(const Crowd&) = delete;

  // -1: there is no place even for somebody who comes.
  int add(Connections::Client client) {
    std::array<int, 2> ends{};
    socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data());
    others_.push_back(ends[1]);
    if (!connections.add(ends[0], client)) {
      close(ends[0]);
      return -1;
    }
    ours_.push_back(ends[0]);
    return ends[0];
  }

  static bool hasToGo(int descriptor) {
    char unread = 0;
    return recv(descriptor, &unread, 1, MSG_DONTWAIT) == 0;
  }

  Connections connections;

 private:
  std::vector<int> ours_, others_;
};

constexpr uid_t me = 1000, somebody = 1001, another = 1002;

TEST(ConnectionRules, LetTheOldestStrangerGo) {
  Crowd crowd(3);
  const int first = crowd.add(me), second = crowd.add(me), third = crowd.add(me);
  EXPECT_FALSE(Crowd::hasToGo(first));
  crowd.add(me);
  EXPECT_TRUE(Crowd::hasToGo(first));
  EXPECT_FALSE(Crowd::hasToGo(second));
  crowd.add(me);
  EXPECT_TRUE(Crowd::hasToGo(second));
  EXPECT_FALSE(Crowd::hasToGo(third));
}

TEST(ConnectionRules, KeepThoseWhoWereLetIn) {
  Crowd crowd(3);
  const int first = crowd.add(me);
  crowd.connections.trust(first);
  EXPECT_TRUE(crowd.connections.isTrusted(first));
  std::vector<int> strangers;
  for (int count = 0; count < 5; ++count) strangers.push_back(crowd.add(me));
  EXPECT_FALSE(Crowd::hasToGo(first));
  EXPECT_FALSE(crowd.connections.isTrusted(strangers.back()));
  EXPECT_TRUE(Crowd::hasToGo(strangers[2]));
  EXPECT_FALSE(Crowd::hasToGo(strangers[3]));
}

TEST(ConnectionRules, LetThoseGoWhoWereLetInWhenThereIsNobodyElse) {
  Crowd crowd(2);
  const int first = crowd.add(me), second = crowd.add(me);
  crowd.connections.trust(first);
  crowd.connections.trust(second);
  crowd.connections.trust(first);  // it has asked again
  crowd.add(me);
  EXPECT_TRUE(Crowd::hasToGo(second));
  EXPECT_FALSE(Crowd::hasToGo(first));
}

TEST(ConnectionRules, LetTheClientGoWhoHasTheMost) {
  Crowd crowd(4);
  const int mine = crowd.add(me), others = crowd.add(another);
  const int first = crowd.add(somebody), second = crowd.add(somebody);
  crowd.add(somebody);
  EXPECT_TRUE(Crowd::hasToGo(first));
  crowd.add(std::nullopt);
  EXPECT_TRUE(Crowd::hasToGo(second));
  EXPECT_FALSE(Crowd::hasToGo(mine));
  EXPECT_FALSE(Crowd::hasToGo(others));
}

TEST(ConnectionRules, CountThoseAsOneOfWhomNothingIsKnown) {
  Crowd crowd(3);
  const int mine = crowd.add(me);
  const int unknown = crowd.add(std::nullopt);
  crowd.add(std::nullopt);
  crowd.add(std::nullopt);
  EXPECT_TRUE(Crowd::hasToGo(unknown));
  EXPECT_FALSE(Crowd::hasToGo(mine));
}

TEST(ConnectionRules, WaitForThoseWhoHaveToGo) {
  Crowd crowd(2);
  for (int count = 0; count < 4; ++count) EXPECT_NE(crowd.add(me), -1);
  EXPECT_EQ(crowd.add(me), -1) << "nobody has gone yet";
}

TEST(ConnectionRules, MakeRoomWhenAsked) {
  Crowd crowd(10);
  const int first = crowd.add(me), second = crowd.add(me);
  crowd.connections.makeRoom(std::chrono::milliseconds(1));
  EXPECT_TRUE(Crowd::hasToGo(first));
  EXPECT_FALSE(Crowd::hasToGo(second));
}

}  // namespace
}  // namespace sim
