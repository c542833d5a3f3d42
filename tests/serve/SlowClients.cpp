// Those who are silent or slow keep nobody else out.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "tests/serve/AnotherUser.h"
#include "tests/serve/EventReader.h"
#include "tests/serve/RawConnection.h"

namespace sim {
namespace {

constexpr int many = 400;

// What a request begins with that shows the secret, and one of a stranger.
std::string head(const ServedProgram& program, const std::string& line, bool isStranger = false) {
  return line + " HTTP/1.1\r\nHost: " + program.host() + "\r\n" +
         (isStranger ? "" : "Authorization: Bearer " + program.token() + "\r\n");
}

std::vector<RawConnection> connected(const ServedProgram& program, int count,
                                     const std::string& bytes) {
  std::vector<RawConnection> all;
  for (int each = 0; each < count; ++each) {
    all.emplace_back(program);
    all.back().send(bytes);
  }
  return all;
}

void expectToBeQuick(const ServedProgram& program) {
  for (int times = 0; times < 20; ++times) {
    EXPECT_EQ(program.get("/api/setup").status, 200);
    EXPECT_EQ(program.command("volume 0.5").status, 200);
  }
}

TEST(SlowClients, ThatAreSilentKeepNobodyOut) {
  const ServedProgram program;
  EventReader page(program);
  page.next("snapshot");
  const auto silent = connected(program, many, "");
  expectToBeQuick(program);
  // Who watches goes on watching.
  program.command("volume 0.125");
  EXPECT_EQ(
      page.next("player", [](const json& player) { return player.at("volume") == 0.125; }).name,
      "player");
}

TEST(SlowClients, InTheMiddleOfARequestKeepNobodyOut) {
  const ServedProgram program;
  const auto slow = connected(program, many, "GET / HT");
  expectToBeQuick(program);
}

TEST(SlowClients, WithTheSecretKeepNobodyOut) {
  const ServedProgram program;
  const auto slow = connected(program, many,
                              head(program, "POST /api/command") +
                                  "Content-Type: application/json\r\nContent-Length: 100\r\n\r\n{");
  expectToBeQuick(program);
}

TEST(SlowClients, ThatSendAByteNowAndThenKeepNobodyOut) {
  const ServedProgram program;
  const auto slow = connected(program, many, "GET /?");
  std::atomic<bool> enough = false;
  std::thread sender([&slow, &enough] {
    while (!enough)
      for (const RawConnection& each : slow) each.send("x");
  });
  expectToBeQuick(program);
  enough = true;
  sender.join();
}

TEST(SlowClients, AreCutOffAfterAWhile) {
  const ServedProgram program;
  const RawConnection slow(program), silent(program);
  slow.send(head(program, "GET /api/setup") + "X-Slow: ");
  // Each byte alone comes soon enough. The whole test ends by ctest's limit if they are never cut
  // off.
  while (slow.send("x") && !slow.isOver()) usleep(100'000);
  while (!silent.isOver()) usleep(100'000);
  EXPECT_EQ(program.get("/api/setup").status, 200);
}

TEST(SlowClients, KeepNobodyOutWhereDescriptorsAreFew) {
  const ServedProgram program({"--no-music"}, 100);
  EventReader page(program);
  page.next("snapshot");
  const auto silent = connected(program, many, "");
  expectToBeQuick(program);
  EXPECT_EQ(program.command("snapshot screen.png").status, 200) << "it needs some itself";
  EXPECT_EQ(program.errors(), "");
}

TEST(SlowClients, OfAnotherUserGoFirst) {
  if (!canBecomeAnotherUser()) GTEST_SKIP() << "there can be no process of another user";
  const ServedProgram program;
  // They come and go, faster than anybody can ask.
  const pid_t other = startAsAnotherUser([&program] {
    for (int times = 0; times < 50; ++times) connected(program, many, "GET");
    return 0;
  });
  expectToBeQuick(program);
  kill(other, SIGKILL);
  int status = 0;
  waitpid(other, &status, 0);
}

TEST(SlowClients, StayWhileThereIsRoom) {
  const ServedProgram program;
  const RawConnection one(program);
  const auto others = connected(program, 100, "");
  one.send(head(program, "GET /api/setup") + "Connection: close\r\n\r\n");
  EXPECT_TRUE(one.reads("200 OK", 1));
}

}  // namespace
}  // namespace sim
