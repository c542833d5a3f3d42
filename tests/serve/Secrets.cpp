// Nobody is let in without the phone's secret.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "tests/serve/AnotherUser.h"
#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

constexpr const char* sentence =
    "open the address that dozewell-simulator printed when it started: it holds this phone's "
    "secret";

// As another user's process asks, with whatever it takes for the secret.
Answer ask(const ServedProgram& program, const httplib::Headers& headers,
           const std::string& path = "/api/settings") {
  return answerFrom(program.stranger().Get(path, headers));
}

Answer askWithCookie(const ServedProgram& program, const std::string& cookies) {
  return ask(program, {{"Cookie", cookies}});
}

TEST(Secrets, AreAskedForByEveryRequest) {
  const ServedProgram program;
  const std::string before = program.journal();
  for (const char* path : {"/", "/main.js", "/api/events", "/api/journal", "/api/recording.phone",
                           "/api/nothing", "/music", "/music/1", "/fonts/Inter-Regular.otf",
                           "/0123456789abcdef/", "/0123456789abcdef/api/journal"}) {
    const Answer answer = ask(program, {}, path);
    EXPECT_EQ(answer.status, 401) << path;
    EXPECT_EQ(answer.error(), sentence) << path;
    EXPECT_EQ(answer.header("WWW-Authenticate"), "Bearer") << path;
  }
  for (const char* path : {"/api/command", "/api/time", "/api/setup", "/api/script"}) {
    const Answer answer = answerFrom(
        program.stranger().Post(path, R"({"line":"shake","lines":[]})", "application/json"));
    EXPECT_EQ(answer.status, 401) << path;
  }
  EXPECT_EQ(answerFrom(program.stranger().Delete("/api/script")).status, 401);
  EXPECT_EQ(answerFrom(program.stranger().Put("/api/script")).status, 401);
  EXPECT_EQ(answerFrom(program.stranger().Head("/api/settings")).status, 401);
  EXPECT_EQ(program.journal(), before);
}

TEST(Secrets, AreRefusedWhenTheyAreWrong) {
  const ServedProgram program;
  const std::string token = program.token();
  std::string almost = token;
  almost.back() = almost.back() == '0' ? '1' : '0';
  for (const std::string& wrong : {std::string(), almost, token + "0", token.substr(1),
                                   token.substr(0, 31), std::string(32, '0'), ' ' + token}) {
    EXPECT_EQ(ask(program, {{"Authorization", "Bearer " + wrong}}).status, 401) << wrong;
    EXPECT_EQ(askWithCookie(program, "dozewell=" + wrong).status, 401) << wrong;
    EXPECT_EQ(ask(program, {}, "/?token=" + wrong).status, 401) << wrong;
  }
  EXPECT_EQ(ask(program, {{"Authorization", "Basic " + token}}).status, 401);
  EXPECT_EQ(ask(program, {{"Authorization", token}}).status, 401);
  for (const char* cookie : {"other=", "dozewell", "dozewell:", "dozewell2=", "a; dozewell ="})
    EXPECT_EQ(askWithCookie(program, cookie + token).status, 401) << cookie;
  EXPECT_EQ(answerFrom(program.stranger().Head("/?token=" + token)).status, 401);
  EXPECT_EQ(answerFrom(program.stranger().Post("/?token=" + token)).status, 401);
  // In an address it is for the page alone: addresses are kept in many places.
  EXPECT_EQ(ask(program, {}, "/api/settings?token=" + token).status, 401);
}

TEST(Secrets, LetInWhoKnowsThem) {
  const ServedProgram program;
  const std::string token = program.token();
  EXPECT_EQ(ask(program, {{"Authorization", "Bearer " + token}}).status, 200);
  for (const std::string& cookies : {"dozewell=" + token, "a=b; dozewell=" + token + "; c=d",
                                     "dozewell=old; dozewell=" + token, ";;dozewell=" + token})
    EXPECT_EQ(askWithCookie(program, cookies).status, 200) << cookies;
  EXPECT_EQ(ask(program, {{"Cookie", "a=b"}, {"Cookie", "dozewell=" + token}}).status, 200);
}

TEST(Secrets, DoNotReplaceTheOtherChecks) {
  const ServedProgram program;
  EXPECT_EQ(program.get("/api/settings", {{"Host", "example.org"}}).status, 403);
  EXPECT_EQ(program.get("/api/settings", {{"Origin", "http://example.org"}}).status, 403);
}

TEST(Secrets, AreTakenIntoACookieByThePage) {
  const ServedProgram program;
  const Answer page = ask(program, {}, program.entrance());
  EXPECT_EQ(page.status, 200);
  EXPECT_NE(page.body.find("main.js"), std::string::npos);
  EXPECT_EQ(page.header("Set-Cookie"), "dozewell=" + program.token() + "; Path=/" +
                                           program.place() + "/; HttpOnly; SameSite=Strict");
  EXPECT_EQ(page.header("Cache-Control"), "no-store");
  const Answer redirected = ask(program, {}, "/?token=" + program.token() + "&script=/a.phone");
  EXPECT_EQ(redirected.status, 303);
  EXPECT_EQ(redirected.header("Location"), program.entrance() + "&script=/a.phone");
  EXPECT_EQ(redirected.header("Set-Cookie"), "");
  EXPECT_EQ(program.get("/").header("Set-Cookie"), "");
}

TEST(Secrets, AreForAPlaceOfTheirOwn) {
  const ServedProgram program;
  // Any place: a page stays where it is when the program is started again with the same secret.
  for (const std::string& place : {program.place(), std::string(16, 'f')}) {
    EXPECT_EQ(program.get("/" + place + "/api/settings").status, 200);
    EXPECT_EQ(program.get("/" + place + "/").status, 200);
    EXPECT_EQ(program.get("/" + place + "/main.js").status, 200);
  }
  for (const char* path : {"/0123456789abcde/api/settings", "/0123456789abcdeg/api/settings",
                           "/0123456789ABCDEF/api/settings", "/0123456789abcdef",
                           "/0123456789abcdef/0123456789abcdef/api/settings"})
    EXPECT_EQ(program.get(path).status, 404) << path;
}

TEST(Secrets, TellAPersonInWords) {
  const ServedProgram program;
  const Answer answer = ask(program, {{"Accept", "text/html,*/*"}}, "/");
  EXPECT_EQ(answer.status, 401);
  EXPECT_EQ(answer.header("Content-Type"), "text/html; charset=utf-8");
  EXPECT_NE(answer.body.find(sentence), std::string::npos);
}

TEST(Secrets, AreNewAtEachStart) {
  const ServedProgram one, other;
  EXPECT_EQ(one.token().size(), 32u);  // of four bits
  EXPECT_EQ(one.token().find_first_not_of("0123456789abcdef"), std::string::npos);
  EXPECT_NE(one.token(), other.token());
  EXPECT_NE(one.place(), other.place());
  EXPECT_EQ(ask(other, one.secret()).status, 401);
}

TEST(Secrets, MayBeChosen) {
  const ServedProgram program({"--no-music", "--token", "Let.me-in_~1"});
  EXPECT_EQ(program.token(), "Let.me-in_~1");
  EXPECT_EQ(ask(program, {{"Authorization", "Bearer Let.me-in_~1"}}).status, 200);
  EXPECT_EQ(ask(program, {{"Authorization", "Bearer Let.me-in_~2"}}).status, 401);
}

std::string firstLineOfRefusal(const std::vector<std::string>& words) {
  try {
    const ServedProgram program(words);
    return "it serves";
  } catch (const std::runtime_error& error) {
    const std::string text = error.what();
    return text.substr(0, text.find('\n'));
  }
}

TEST(Secrets, MustFitIntoAnAddress) {
  const std::string expected =
      "it ended with 2: dozewell-simulator: --token needs up to 200 letters, digits and -._~";
  EXPECT_EQ(firstLineOfRefusal({"--no-music", "--token", "a b"}), expected);
  EXPECT_EQ(firstLineOfRefusal({"--no-music", "--token", ""}), expected);
  EXPECT_EQ(firstLineOfRefusal({"--no-music", "--token", "a;b"}), expected);
  EXPECT_EQ(firstLineOfRefusal({"--no-music", "--token", std::string(201, 'a')}), expected);
}

TEST(Secrets, MayComeFromTheEnvironment) {
  setenv("DOZEWELL_TOKEN", "from.the.environment", 1);
  {
    const ServedProgram program;
    EXPECT_EQ(program.token(), "from.the.environment");
    const ServedProgram other({"--no-music", "--token", "rather-this"});
    EXPECT_EQ(other.token(), "rather-this");
  }
  setenv("DOZEWELL_TOKEN", "a b", 1);
  EXPECT_EQ(firstLineOfRefusal({"--no-music"}),
            "it ended with 2: dozewell-simulator: DOZEWELL_TOKEN in the environment needs up to "
            "200 letters, digits and -._~");
  unsetenv("DOZEWELL_TOKEN");
}

TEST(Secrets, OutliveRestartsOfTheHost) {
  const ServedProgram program;
  program.command("respring");
  EXPECT_EQ(program.get("/api/settings").status, 200);
  EXPECT_EQ(ask(program, {}).status, 401);
  program.post("/api/setup", {{"lines", json::array()}});
  program.post("/api/script", {{"name", "a.phone"}, {"text", "boot\n"}});
  EXPECT_EQ(program.get("/" + program.place() + "/api/settings").status, 200);
  EXPECT_EQ(ask(program, {}).status, 401);
}

TEST(Secrets, AreInNoListOfProcesses) {
  const ServedProgram program;
  program.command("respring");
  EventReader(program).next("snapshot");  // of the process that serves now
  for (const pid_t each : {program.process(), program.hostProcess()}) {
    const std::string words = contentOf("/proc/" + std::to_string(each) + "/cmdline");
    EXPECT_FALSE(words.empty());
    EXPECT_EQ(words.find(program.token()), std::string::npos) << words;
  }
}

// Where a program that is started now keeps what is its own.
class OwnTemporaryFolder {
 public:
  OwnTemporaryFolder() {
    chmod(folder_.path().c_str(), 0755);
    if (const char* usual = std::getenv("TMPDIR")) usual_ = usual;
    setenv("TMPDIR", folder_.path().c_str(), 1);
  }
  ~OwnTemporaryFolder() {
    if (usual_.empty())
      unsetenv("TMPDIR");
    else
      setenv("TMPDIR", usual_.c_str(), 1);
  }
  OwnTemporaryFolder(const OwnTemporaryFolder&) = delete;
  OwnTemporaryFolder& operator=(const OwnTemporaryFolder&) = delete;

  std::vector<std::filesystem::path> entries() const {
    std::vector<std::filesystem::path> all;
    for (const auto& each : std::filesystem::directory_iterator(folder_.path()))
      all.push_back(each.path());
    return all;
  }

 private:
  TestFolder folder_;
  std::string usual_;
};

bool isForItsOwnerOnly(const std::filesystem::path& path) {
  using std::filesystem::perms;
  return (std::filesystem::status(path).permissions() & (perms::group_all | perms::others_all)) ==
         perms::none;
}

TEST(Secrets, LieWhereNobodyElseCanLook) {
  const OwnTemporaryFolder temporary;
  const ServedProgram program;
  int ours = 0;
  for (const auto& each : temporary.entries()) {
    EXPECT_TRUE(isForItsOwnerOnly(each)) << each;
    ours += std::filesystem::exists(each / "phone") ? 1 : 0;
  }
  EXPECT_EQ(ours, 1);
}

TEST(Secrets, AreNotFoundByAnotherUser) {
  if (!canBecomeAnotherUser()) GTEST_SKIP() << "there can be no process of another user";
  const OwnTemporaryFolder temporary;
  setenv("DOZEWELL_TOKEN", "a-secret-of-the-environment", 1);
  const ServedProgram program;
  unsetenv("DOZEWELL_TOKEN");
  const auto entries = temporary.entries();
  EXPECT_EQ(asAnotherUser([&] {
              const int status = ask(program, {}).status;
              return status != 401;
            }),
            0);
  EXPECT_EQ(asAnotherUser([&] {
              for (const pid_t each : {program.process(), program.hostProcess()}) {
                const std::string folder = "/proc/" + std::to_string(each);
                if (!contentOf(folder + "/environ").empty()) return true;
                if (access((folder + "/mem").c_str(), R_OK) == 0) return true;
              }
              return false;
            }),
            0);
  EXPECT_EQ(asAnotherUser([&] {
              for (const auto& each : entries)
                if (access(each.c_str(), R_OK) == 0 || access(each.c_str(), X_OK) == 0) return true;
              return false;
            }),
            0);
}

}  // namespace
}  // namespace sim
