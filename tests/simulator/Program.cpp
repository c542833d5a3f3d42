// The command line: usage, several scripts, exit status.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

TEST(Program, WrongUsageIsStatusTwo) {
  for (const char* words :
       {"nope", "play", "play --nope x", "play --tweak", "commands x", "play --root a b c",
        "play --tweak a --no-tweak b", "play --package /nonexistent a", "--version x"}) {
    const Outcome outcome = runSimulator(words);
    EXPECT_EQ(outcome.status, 2) << words;
    EXPECT_NE(outcome.errors.find("usage: "), std::string::npos) << words;
  }
}

TEST(Program, HelpIsNoError) {
  for (const char* words : {"--help", "-h", "help", "play --help", ""}) {
    const Outcome outcome = runSimulator(words);
    EXPECT_EQ(outcome.status, 0) << words;
    EXPECT_EQ(outcome.output.rfind("usage: dozewell-simulator", 0), 0u) << words;
  }
}

TEST(Program, VersionIsTheProjects) {
  const Outcome outcome = runSimulator("--version");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "dozewell-simulator " DOZEWELL_VERSION "\n");
}

TEST(Program, PackageIsInstalledThroughTheLinksOfAPhone) {
  namespace files = std::filesystem;
  const files::path root = files::path(writeFile("beside", "")).parent_path() / "installed";
  files::create_directories(root / "private/jb/Library");
  files::create_directories(root / "var");
  files::create_symlink("../private/jb", root / "var/jb");
  std::ofstream(root / "private/jb/Library/note.txt") << "hello";
  const Outcome outcome = play(
      "boot\n"
      "send NSFileManager.defaultManager fileExistsAtPath: \"/var/jb/Library/note.txt\"\n"
      "expect-last YES",
      "--quiet --package '" + root.string() + "'");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Program, PrintsTheJournalUnlessQuiet) {
  const std::string script = "boot\nadvance 90s\nlet a Sample.new\nget $a.count";
  EXPECT_EQ(play(script, "").output,
            "     0.000  -[SpringBoard applicationDidFinishLaunching:]\n0\n");
  EXPECT_EQ(play(script, "--quiet").output, "0\n");
}

TEST(Program, PlaysEveryScriptAndReportsEachFailure) {
  const std::string bad = writeFile("bad.phone", "boot\nadvance x\n");
  const std::string good = writeFile("good.phone", "boot\nget NSThread.isMainThread\n");
  const std::string worse = writeFile("worse.phone", "boot\nget Nope\n");
  const Outcome outcome =
      runSimulator("play --quiet --no-tweak '" + bad + "' '" + good + "' '" + worse + "'");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "YES\n");
  EXPECT_NE(outcome.errors.find(bad + ":2:9: "), std::string::npos);
  EXPECT_NE(outcome.errors.find(worse + ":2:5: there is no class Nope"), std::string::npos);
}

TEST(Program, AScriptThatIsNotThere) {
  const Outcome outcome = runSimulator("play --no-tweak /nonexistent.phone");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(firstLine(outcome.errors), "/nonexistent.phone: No such file or directory");
  EXPECT_EQ(firstLine(runSimulator("play --no-tweak /tmp").errors),
            "/tmp: is a folder, not a script");
}

TEST(Program, AScriptWithoutAnEnd) {
  EXPECT_EQ(firstLine(runSimulator("play --no-tweak /dev/zero").errors),
            "/dev/zero: File too large");
  EXPECT_EQ(firstLine(runSimulator("serve --no-tweak --script /dev/zero").errors),
            "dozewell-simulator: /dev/zero: File too large");
}

TEST(Program, OutputThatCannotBeWrittenIsAFailure) {
  const std::string script = writeFile("full.phone", "boot\nget NSThread.isMainThread\n");
  for (const std::string& words :
       {"play --no-tweak '" + script + "'", std::string("commands"), std::string("fidelity")}) {
    // The redirection that comes last counts.
    const Outcome outcome = runSimulator(words + " | cat > /dev/null; '" SIMULATOR "' " + words +
                                         " > /dev/full; test $? = 1 && echo refused");
    EXPECT_EQ(outcome.output, "refused\n") << words;
  }
}

TEST(Program, AnExtensionThatDoesNotLoad) {
  const std::string script = writeFile("boot.phone", "boot\n");
  const Outcome outcome = runSimulator("play --tweak /nonexistent.so '" + script + "'");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find(":1:1: the extension does not load: /nonexistent.so"),
            std::string::npos);
}

TEST(Program, AnExtensionThatStopsTheProgramIsReportedWithTheLine) {
  const Outcome outcome =
      play("boot\n\nsend Sample.new performSelector: selector nope\nadvance 1s");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("-[Sample nope]: unrecognized selector"), std::string::npos);
  EXPECT_NE(outcome.errors.find("SCRIPT:3:1: the phone stopped here"), std::string::npos);
}

TEST(Program, FidelityGradesEveryFramework) {
  const Outcome outcome = runSimulator("fidelity");
  EXPECT_EQ(outcome.status, 0);
  for (const char* line : {"## Foundation\n", "## UIKit\n", "## libdispatch\n", "### Functions\n",
                           "| `dispatch_async` | real |  |\n", "| partial | "})
    EXPECT_NE(outcome.output.find(line), std::string::npos) << line;
}

TEST(Program, FidelityNamesTheVersionsOfEachClass) {
  const std::string page = runSimulator("fidelity").output;
  for (const char* line : {"### MRUEmbeddingView (15 and earlier)\n",
                           "### MRUNowPlayingContainerView (all versions)\n",
                           "| `@property collapsedEmbeddingView` (15 and earlier) | real |",
                           "| `-[MRUNowPlayingView contentView]` (16 and later) | real |"})
    EXPECT_NE(page.find(line), std::string::npos) << line;
  const std::string title = "\n### ";
  for (auto at = page.find(title); at != std::string::npos; at = page.find(title, at + 1)) {
    const std::string line = page.substr(at + 1, page.find('\n', at + 1) - at - 1);
    EXPECT_TRUE(line == "### Functions" || line.ends_with(')')) << line;
  }
}

}  // namespace
}  // namespace sim
