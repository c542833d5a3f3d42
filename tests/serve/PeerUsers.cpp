// Whose process is at the other end.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "simulator/serve/http/PeerUser.h"
#include "tests/serve/AnotherUser.h"

namespace sim {
namespace {

class PeerUsers : public testing::Test {
 protected:
  PeerUsers() {
    address_.sin_family = AF_INET;
    address_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bind(listener_, plain(), size_);
    listen(listener_, 1);
    getsockname(listener_, plain(), &size_);
  }
  ~PeerUsers() override { close(listener_); }

  // -1 when that fails.
  int connected() {
    const int made = socket(AF_INET, SOCK_STREAM, 0);
    return connect(made, plain(), size_) == 0 ? made : -1;
  }
  int accepted() const { return accept(listener_, nullptr, nullptr); }

 private:
  sockaddr* plain() { return reinterpret_cast<sockaddr*>(&address_); }

  int listener_ = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address_{};
  socklen_t size_ = sizeof address_;
};

TEST_F(PeerUsers, AreKnownAsLongAsTheyAreThere) {
  const int other = connected(), own = accepted();
  EXPECT_EQ(peerUser(own), getuid());
  close(other);
  EXPECT_EQ(peerUser(own), std::nullopt);
  close(own);
}

TEST_F(PeerUsers, AreOthersThanThisOne) {
  if (!canBecomeAnotherUser()) GTEST_SKIP() << "there can be no process of another user";
  const pid_t child = startAsAnotherUser([this] {
    connected();
    return pause();
  });
  const int own = accepted();
  EXPECT_EQ(peerUser(own), nobody);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  close(own);
}

TEST_F(PeerUsers, AreNotThoseOfAFile) {
  EXPECT_EQ(peerUser(-1), std::nullopt);
  EXPECT_EQ(peerUser(STDIN_FILENO), std::nullopt);
}

}  // namespace
}  // namespace sim
