#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

class NSFileManagerTest : public FoundationTest {
 protected:
  static Object manager() { return send<Object, "defaultManager">(cls("NSFileManager")); }
  static bool exists(const char* path) {
    return send<bool, "fileExistsAtPath:">(manager(), string(path));
  }
  static bool create(const char* path, bool intermediates) {
    return send<bool, "createDirectoryAtPath:withIntermediateDirectories:attributes:error:">(
        manager(), string(path), intermediates, Object(), static_cast<Object*>(nullptr));
  }
  static bool remove(const char* path) {
    return send<bool, "removeItemAtPath:error:">(manager(), string(path),
                                                 static_cast<Object*>(nullptr));
  }
};

TEST_F(NSFileManagerTest, looksBelowTheRoot) {
  EXPECT_FALSE(exists("/var/jb/file.txt"));
  writeFile("/var/jb/file.txt", "content");
  EXPECT_TRUE(exists("/var/jb/file.txt"));
  EXPECT_TRUE(exists("/../../var/jb/file.txt"));
  EXPECT_FALSE((send<bool, "fileExistsAtPath:">(manager(), nullptr)));
  const Object content = send<Object, "contentsAtPath:">(manager(), string("/var/jb/file.txt"));
  EXPECT_EQ((send<unsigned long, "length">(content)), 7u);
  bool isDirectory = false;
  EXPECT_TRUE(
      (send<bool, "fileExistsAtPath:isDirectory:">(manager(), string("/var/jb"), &isDirectory)));
  EXPECT_TRUE(isDirectory);
}

TEST_F(NSFileManagerTest, makesAndRemovesFolders) {
  EXPECT_FALSE(create("/folder/inner", false));
  EXPECT_TRUE(create("/folder/inner", true));
  EXPECT_TRUE(create("/folder/inner", true));
  EXPECT_FALSE(create("/folder/inner", false));
  writeFile("/folder/b", "");
  writeFile("/folder/a", "");
  const Object names = send<Object, "contentsOfDirectoryAtPath:error:">(
      manager(), string("/folder"), static_cast<Object*>(nullptr));
  EXPECT_EQ(text(send<Object, "componentsJoinedByString:">(names, string(","))), "a,b,inner");
  EXPECT_TRUE(remove("/folder"));
  EXPECT_FALSE(remove("/folder"));
  EXPECT_FALSE(exists("/folder/a"));
}

// The system's calls end at a NUL: behind it ".." would be another name, and lead out.
TEST_F(NSFileManagerTest, staysBelowTheRootWhateverAPathHolds) {
  writeFile("/file", "1");
  using std::string_view_literals::operator""sv;
  for (const std::string_view trick : {"/..\0"sv, "..\0a"sv, "/../..\0/"sv, "/a/..\0"sv}) {
    const Object path = string(trick);
    EXPECT_FALSE(
        (send<bool, "removeItemAtPath:error:">(manager(), path, static_cast<Object*>(nullptr))));
    const Object names = send<Object, "contentsOfDirectoryAtPath:error:">(
        manager(), path, static_cast<Object*>(nullptr));
    EXPECT_EQ(text(send<Object, "componentsJoinedByString:">(names, string(","))), "file");
  }
  EXPECT_TRUE(exists("/file"));
}

TEST_F(NSFileManagerTest, removesNoWholeDisk) {
  writeFile("/file", "1");
  for (const char* path : {"/", "", "//", "/.", "/..", "/a/.."}) EXPECT_FALSE(remove(path)) << path;
  EXPECT_TRUE(exists("/file"));
}

TEST_F(NSFileManagerTest, movesItems) {
  writeFile("/from", "1");
  writeFile("/taken", "2");
  const auto move = [](const char* from, const char* to) {
    return send<bool, "moveItemAtPath:toPath:error:">(manager(), string(from), string(to),
                                                      static_cast<Object*>(nullptr));
  };
  EXPECT_FALSE(move("/from", "/taken"));
  EXPECT_TRUE(move("/from", "/to"));
  EXPECT_EQ(readFile("/to"), "1");
  EXPECT_FALSE(exists("/from"));
}

}  // namespace
}  // namespace sim
