// Who may ask what: nobody from elsewhere, nothing that is not there.
#include <gtest/gtest.h>
#include <sys/socket.h>

#include "tests/serve/MusicFiles.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

TEST(Guarding, AnswersItsOwnHostOnly) {
  const ServedProgram program;
  const auto status = [&program](const std::string& host) {
    return program.get("/api/settings", {{"Host", host}}).status;
  };
  EXPECT_EQ(status(program.host()), 200);
  EXPECT_EQ(status("localhost:" + std::to_string(program.port())), 200);
  EXPECT_EQ(status("localhost"), 403);
  EXPECT_EQ(status("example.org"), 403);
  EXPECT_EQ(status("example.org:" + std::to_string(program.port())), 403);
  EXPECT_EQ(program.get("/", {{"Host", "example.org"}}).error(),
            "expected the Host " + program.host());
}

TEST(Guarding, AnswersPagesOfItsOwnOnly) {
  const ServedProgram program;
  const auto answer = [&program](const std::string& origin) {
    return program.get("/api/settings", {{"Origin", origin}});
  };
  EXPECT_EQ(answer("http://" + program.host()).status, 200);
  EXPECT_EQ(answer("https://" + program.host()).status, 403);
  EXPECT_EQ(answer("http://example.org").status, 403);
  EXPECT_EQ(answer("null").error(), "expected the Origin http://" + program.host());
}

TEST(Guarding, TakesJsonOnly) {
  const ServedProgram program;
  const auto answer = program.client().Post("/api/command", R"({"line":"shake"})", "text/plain");
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->status, 415);
  EXPECT_EQ(json::parse(answer->body).at("error"), "expected the Content-Type application/json");
  EXPECT_EQ(program.journal().find("user shake"), std::string::npos);
}

TEST(Guarding, LimitsBodies) {
  const ServedProgram program;
  const auto answer =
      program.client().Post("/api/command", std::string(3'000'000, ' '), "application/json");
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->status, 413);
  EXPECT_EQ(json::parse(answer->body).at("error"), "expected at most 2621440 bytes");
  EXPECT_EQ(program.command("lock").status, 200);
}

TEST(Guarding, KnowsItsPathsAndTheirMethods) {
  const ServedProgram program;
  EXPECT_EQ(program.get("/api/nothing").status, 404);
  EXPECT_EQ(program.get("/api/nothing").error(), "there is no /api/nothing");
  EXPECT_EQ(program.get("/nothing.js").status, 404);
  const Answer wrong = program.get("/api/command");
  EXPECT_EQ(wrong.status, 405);
  EXPECT_EQ(wrong.error(), "expected POST, found GET");
  EXPECT_EQ(wrong.header("Allow"), "POST");
  const auto deleted = program.client().Delete("/api/settings");
  ASSERT_TRUE(deleted);
  EXPECT_EQ(deleted->status, 405);
}

TEST(Guarding, StaysInsideItsFolders) {
  TestFolder folder;
  folder.write("web/index.html", "<p>");
  folder.write("secret.txt", "secret");
  std::filesystem::create_symlink(folder.path() / "secret.txt", folder.path() / "web/link.txt");
  folder.write("piece.wav", wave(1));
  const ServedProgram program({"--web", (folder.path() / "web").string(), folder.path().string()});
  EXPECT_EQ(program.get("/").body, "<p>");
  for (const char* path : {"/../secret.txt", "/%2e%2e/secret.txt", "/..%2fsecret.txt",
                           "/./../secret.txt", "//etc/hostname", "/link.txt", "/music/../1",
                           "/music/%2e%2e%2fsecret.txt", "/%00", "/index.html%00.txt"}) {
    const Answer answer = program.get(path);
    EXPECT_EQ(answer.status, 404) << path;
    EXPECT_EQ(answer.body.find("secret\n"), std::string::npos) << path;
  }
}

TEST(Guarding, LetsNoRequestLeaveTheMachine) {
  const ServedProgram program;
  const Answer answer = program.get("/music");
  EXPECT_EQ(answer.status, 200);
  const std::string policy = answer.header("Content-Security-Policy");
  EXPECT_NE(policy.find("default-src 'none'"), std::string::npos);
  EXPECT_EQ(policy.find("http"), std::string::npos);
  EXPECT_EQ(policy.find('*'), std::string::npos);
  EXPECT_EQ(answer.header("X-Content-Type-Options"), "nosniff");
}

TEST(Guarding, ListensOnLoopbackOnly) {
  const ServedProgram program;
  const std::string line = [&program] {
    char wanted[16];
    std::snprintf(wanted, sizeof wanted, ":%04X", unsigned(program.port()));
    std::ifstream sockets("/proc/net/tcp");
    for (std::string each; std::getline(sockets, each);) {
      if (each.find(wanted) == each.find(':', each.find(':') + 1) &&
          each.find(" 0A ") != std::string::npos)
        return each;
    }
    return std::string();
  }();
  EXPECT_NE(line.find("0100007F:"), std::string::npos) << line;
}

TEST(Guarding, SaysThatAPortIsInUse) {
  const ServedProgram program;
  try {
    const ServedProgram second({"--port", std::to_string(program.port())});
    FAIL() << "it serves at " << second.port();
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string(error.what())
                  .find("port " + std::to_string(program.port()) + ": Address already in use"),
              std::string::npos)
        << error.what();
  }
}

TEST(Guarding, EndsInOrder) {
  for (const int signal : {SIGINT, SIGTERM}) {
    ServedProgram program;
    EXPECT_EQ(program.get("/music").status, 200);
    EXPECT_EQ(program.end(signal), 0);
    EXPECT_EQ(program.errors(), "");
  }
}

}  // namespace
}  // namespace sim
