// The program around the compiler: its options, its exit status and what it does to files.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "simulator/host/TemporaryFolder.h"
#include "tests/nibc/TestDocument.h"

namespace {

class Program : public testing::Test {
 protected:
  std::string path(const char* name) const { return (folder_.path() / name).string(); }

  void writeFile(const char* name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
  }
  std::string contents(const char* name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // In the folder, so that messages name files as they are given.
  int run(const std::string& words) const {
    const std::string command =
        "cd '" + folder_.path().string() + "' && '" NIBC "' " + words + " > output 2> errors";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  sim::TemporaryFolder folder_;
};

TEST_F(Program, CompilesDumpsAndReencodes) {
  writeFile("a.xib", xib::document(xib::view("")));
  EXPECT_EQ(run("a.xib a.nib"), 0) << contents("errors");
  EXPECT_EQ(contents("a.nib").substr(0, 10), "NIBArchive");
  EXPECT_EQ(run("--dump a.nib"), 0);
  EXPECT_NE(contents("output").find("UIBounds = {0, 0, 100, 50}"), std::string::npos);
  EXPECT_EQ(run("--reencode a.nib b.nib"), 0);
  EXPECT_EQ(contents("b.nib"), contents("a.nib"));
}

TEST_F(Program, RefusesBadDocumentsAndKeepsTheOldOutput) {
  writeFile("a.xib", xib::document("<slider id=\"s\"/>"));
  writeFile("a.nib", "old");
  EXPECT_EQ(run("a.xib a.nib"), 1);
  EXPECT_EQ(contents("errors"), "a.xib:3:1: <slider> is not supported as a view\n");
  EXPECT_EQ(contents("a.nib"), "old");
}

TEST_F(Program, RefusesBadLayouts) {
  writeFile("a.nib", "NIBArchive\1");
  EXPECT_EQ(run("--dump a.nib"), 1);
  EXPECT_EQ(contents("errors"), "a.nib: offset 10: the file ends within the header\n");
  EXPECT_EQ(run("--reencode a.nib b.nib"), 1);
  EXPECT_FALSE(std::filesystem::exists(path("b.nib")));
}

TEST_F(Program, NamesFilesThatItCannotUse) {
  EXPECT_EQ(run("none.xib a.nib"), 1);
  EXPECT_EQ(contents("errors"), "none.xib: No such file or directory\n");
  EXPECT_EQ(run("--dump ."), 1);
  EXPECT_EQ(contents("errors"), ".: is a folder\n");
  writeFile("a.xib", xib::document(xib::view("")));
  EXPECT_EQ(run("a.xib none/a.nib"), 1);
  EXPECT_EQ(contents("errors"), "none/a.nib.new: No such file or directory\n");
}

TEST_F(Program, ExplainsItself) {
  for (const char* words : {"", "a.xib", "--dump", "--reencode a.nib", "--verbose a.xib a.nib"}) {
    EXPECT_EQ(run(words), 2) << words;
    EXPECT_EQ(contents("errors").substr(0, 6), "usage:") << words;
  }
  EXPECT_EQ(run("--help"), 0);
  EXPECT_EQ(contents("output").substr(0, 6), "usage:");
}

}  // namespace
