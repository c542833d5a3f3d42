// What a script's host dies of is told with the line, the place and the stack.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <fstream>

#include "simulator/host/TemporaryFolder.h"
#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

using std::chrono::steady_clock;

Outcome playFailing(const std::string& script, const std::string& options = "") {
  const std::string file = writeFile("script.phone", script);
  return runSimulator("play " + options + " --tweak '" FAILING_EXTENSION "' '" + file + "'");
}

bool isSanitized() {
#ifdef __has_feature
#if __has_feature(address_sanitizer)
  return true;
#endif
#endif
  return false;
}

struct Death {
  const char* method;
  const char* what;
};
class Deaths : public testing::TestWithParam<Death> {};

TEST_P(Deaths, AreReported) {
  const auto [method, what] = GetParam();
  if (isSanitized() && std::string(method) == "takesAllMemory")
    GTEST_SKIP() << "the sanitizer has no limit";
  const Outcome outcome =
      playFailing(std::string("boot\nadvance 2s\nsend Failing.class ") + method + "\nadvance 1s");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.output.find(std::string("     2.000  the host crashed: ") + what),
            std::string::npos)
      << outcome.output;
  EXPECT_NE(outcome.errors.find("script.phone:3:1: the phone stopped here\nthe host crashed: " +
                                std::string(what)),
            std::string::npos)
      << outcome.errors;
  // Built by clang, a program unwinds up to a noexcept function before it terminates: who threw is
  // no longer on the stack. g++ leaves it there.
  if (!isSanitized() || std::string(method) != "throws") {
    EXPECT_NE(outcome.errors.find(std::string("+[Failing ") + method + "]"), std::string::npos)
        << outcome.errors;
  }
  EXPECT_NE(outcome.errors.find("  at 2 s, after it had run for 2 s\n"), std::string::npos);
  EXPECT_NE(outcome.errors.find("     0.000  -[SpringBoard applicationDidFinishLaunching:]"),
            std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    OfTheHost, Deaths,
    testing::Values(Death{"readsNowhere", "Segmentation fault at 0x0"}, Death{"aborts", "Aborted"},
                    Death{"exits", "exit(0) was called"},
                    Death{"divides", "Floating point exception"},
                    Death{"throws", "uncaught exception std::runtime_error: nobody catches this"},
                    Death{"recurses", "stack overflow"}, Death{"takesAllMemory", "out of memory"}),
    [](const auto& each) { return each.param.method; });

TEST(Crashes, NameTheHook) {
  const Outcome outcome = playFailing(
      "ios 14.8\nboot\nsend Failing.class failInHook\nsend SBMediaController.sharedInstance pause");
  EXPECT_NE(outcome.output.find("the host crashed: Segmentation fault at 0x0 in the hook of "
                                "-[SBMediaController pause]\n"),
            std::string::npos)
      << outcome.output;
  EXPECT_NE(outcome.errors.find("readNowhere()"), std::string::npos) << outcome.errors;
}

TEST(Crashes, WithoutAWordAreToldByTheirStatus) {
  const Outcome outcome = playFailing("boot\nsend Failing.class exitsAtOnce");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("the host crashed: it ended with status 3"), std::string::npos)
      << outcome.errors;
}

TEST(Crashes, OfAMessageThatNobodyImplementsSayWhichOne) {
  const Outcome outcome =
      playFailing("boot\nsend Failing.class performSelector: selector nope", "--quiet");
  EXPECT_EQ(outcome.output, "");
  EXPECT_NE(outcome.errors.find("the host crashed: +[Failing nope]: unrecognized selector"),
            std::string::npos)
      << outcome.errors;
}

TEST(Crashes, LeaveTheScriptsThatFollowAlone) {
  const std::string bad = writeFile("bad.phone", "boot\nsend Failing.class aborts\n");
  const std::string good = writeFile("good.phone", "boot\nget NSThread.isMainThread\n");
  const Outcome outcome =
      runSimulator("play --quiet --tweak '" FAILING_EXTENSION "' '" + bad + "' '" + good + "'");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "YES\n");
}

TEST(Limits, EndAScriptThatHangs) {
  const Outcome outcome = playFailing("boot\nadvance 1s\nsend Failing.class hangs", "--limit 1");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(
      outcome.errors.find("script.phone:3:1: the phone stopped here\nthe host crashed: it has "
                          "taken more than 1 s of processor time"),
      std::string::npos)
      << outcome.errors;
  EXPECT_NE(outcome.errors.find("+[Failing hangs]"), std::string::npos) << outcome.errors;
}

TEST(Limits, AreNumbers) {
  EXPECT_EQ(runSimulator("play --limit soon a.phone").status, 2);
  EXPECT_EQ(runSimulator("play --limit -1 a.phone").status, 2);
}

// The program plays the script in the folder until the signal comes.
struct Ended {
  int status;
  double seconds;
};

Ended endedBy(int signal, const std::string& script, const std::filesystem::path& folder) {
  const std::string file = writeFile("hangs.phone", script);
  const pid_t child = fork();
  if (child == 0) {
    setenv("TMPDIR", folder.c_str(), 1);
    execl(SIMULATOR, SIMULATOR, "play", "--quiet", "--limit", "0", "--tweak", FAILING_EXTENSION,
          file.c_str(), nullptr);
    _exit(127);
  }
  usleep(500'000);
  const auto start = steady_clock::now();
  kill(child, signal);
  int status = 0;
  waitpid(child, &status, 0);
  return {status, std::chrono::duration<double>(steady_clock::now() - start).count()};
}

// Processes that have this folder in their environment.
int processesIn(const std::filesystem::path& folder) {
  int count = 0;
  for (const auto& each : std::filesystem::directory_iterator("/proc")) {
    std::ifstream environment(each.path() / "environ", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(environment), {}};
    count += text.find("TMPDIR=" + folder.string()) != std::string::npos ? 1 : 0;
  }
  return count;
}

int entriesIn(const std::filesystem::path& folder) {
  return int(std::distance(std::filesystem::directory_iterator(folder), {}));
}

TEST(Signals, EndAHangingScriptAndLeaveNothing) {
  for (const int signal : {SIGINT, SIGTERM}) {
    const TemporaryFolder folder;
    const Ended ended = endedBy(signal, "boot\nsend Failing.class hangs", folder.path());
    EXPECT_TRUE(WIFSIGNALED(ended.status) && WTERMSIG(ended.status) == signal);
    EXPECT_LT(ended.seconds, 1);
    EXPECT_EQ(entriesIn(folder.path()), 0);
    EXPECT_EQ(processesIn(folder.path()), 0);
  }
}

TEST(Signals, ThatKillLeaveNoProcessAndAFolderForTheNextToRemove) {
  const TemporaryFolder folder;
  endedBy(SIGKILL, "boot\nsend Failing.class hangs", folder.path());
  for (int tries = 0; processesIn(folder.path()) > 0 && tries < 50; ++tries) usleep(20'000);
  EXPECT_EQ(processesIn(folder.path()), 0);
  EXPECT_LE(entriesIn(folder.path()), 1);
  setenv("TMPDIR", folder.path().c_str(), 1);
  EXPECT_EQ(playFailing("boot").status, 0);
  unsetenv("TMPDIR");
  EXPECT_EQ(entriesIn(folder.path()), 0);
}

}  // namespace
}  // namespace sim
