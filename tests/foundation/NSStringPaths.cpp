#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSStringPathsTest = FoundationTest;

template <objc::FixedString Selector>
std::string part(const char* path) {
  return text(send<Object, Selector>(string(path)));
}

std::string appended(const char* path, const char* component) {
  return text(send<Object, "stringByAppendingPathComponent:">(string(path), string(component)));
}

TEST_F(NSStringPathsTest, appendsComponents) {
  EXPECT_EQ(appended("/tmp", "scratch.tiff"), "/tmp/scratch.tiff");
  EXPECT_EQ(appended("/tmp/", "scratch.tiff"), "/tmp/scratch.tiff");
  EXPECT_EQ(appended("/", "scratch.tiff"), "/scratch.tiff");
  EXPECT_EQ(appended("", "scratch.tiff"), "scratch.tiff");
  EXPECT_EQ(appended("/tmp", "/a/"), "/tmp/a");
}

TEST_F(NSStringPathsTest, namesTheLastComponent) {
  EXPECT_EQ(part<"lastPathComponent">("/tmp/scratch.tiff"), "scratch.tiff");
  EXPECT_EQ(part<"lastPathComponent">("/tmp/scratch"), "scratch");
  EXPECT_EQ(part<"lastPathComponent">("/tmp/"), "tmp");
  EXPECT_EQ(part<"lastPathComponent">("scratch///"), "scratch");
  EXPECT_EQ(part<"lastPathComponent">("/"), "/");
}

TEST_F(NSStringPathsTest, dropsTheLastComponent) {
  EXPECT_EQ(part<"stringByDeletingLastPathComponent">("/tmp/scratch.tiff"), "/tmp");
  EXPECT_EQ(part<"stringByDeletingLastPathComponent">("/tmp/lock/"), "/tmp");
  EXPECT_EQ(part<"stringByDeletingLastPathComponent">("/tmp/"), "/");
  EXPECT_EQ(part<"stringByDeletingLastPathComponent">("/tmp"), "/");
  EXPECT_EQ(part<"stringByDeletingLastPathComponent">("/"), "/");
  EXPECT_EQ(part<"stringByDeletingLastPathComponent">("scratch.tiff"), "");
}

TEST_F(NSStringPathsTest, knowsExtensions) {
  EXPECT_EQ(part<"pathExtension">("/tmp/scratch.tiff"), "tiff");
  EXPECT_EQ(part<"pathExtension">(".scratch.tiff"), "tiff");
  EXPECT_EQ(part<"pathExtension">("/tmp/scratch"), "");
  EXPECT_EQ(part<"pathExtension">("/tmp/"), "");
  EXPECT_EQ(part<"pathExtension">("/tmp.d/scratch"), "");
  EXPECT_EQ(part<"pathExtension">("/tmp/scratch..tiff"), "tiff");
  EXPECT_EQ(part<"pathExtension">(".tiff"), "");
}

TEST_F(NSStringPathsTest, dropsExtensions) {
  EXPECT_EQ(part<"stringByDeletingPathExtension">("/tmp/scratch.tiff"), "/tmp/scratch");
  EXPECT_EQ(part<"stringByDeletingPathExtension">("/tmp/"), "/tmp");
  EXPECT_EQ(part<"stringByDeletingPathExtension">("scratch.bundle/"), "scratch");
  EXPECT_EQ(part<"stringByDeletingPathExtension">("scratch..tiff"), "scratch.");
  EXPECT_EQ(part<"stringByDeletingPathExtension">(".tiff"), ".tiff");
  EXPECT_EQ(part<"stringByDeletingPathExtension">("/"), "/");
}

TEST_F(NSStringPathsTest, addsExtensions) {
  EXPECT_EQ(text(send<Object, "stringByAppendingPathExtension:">(string("/tmp/a/"), string("txt"))),
            "/tmp/a.txt");
}

TEST_F(NSStringPathsTest, takesPathsApart) {
  const Object parts = send<Object, "pathComponents">(string("/var/jb//tmp/"));
  EXPECT_EQ(description(send<Object, "componentsJoinedByString:">(parts, string("|"))),
            "/|var|jb|tmp");
  EXPECT_TRUE((send<bool, "isAbsolutePath">(string("/var"))));
  EXPECT_FALSE((send<bool, "isAbsolutePath">(string("var"))));
}

}  // namespace
}  // namespace sim
