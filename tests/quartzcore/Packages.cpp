// Packages in their folders.
#include "tests/quartzcore/PackageTest.h"

namespace sim {
namespace {

using Packages = PackageTest;

bool isFlipped(Object package) {
  return send<bool, "isGeometryFlipped">(package);
}

TEST_F(Packages, HoldTheTreeThatTheirIndexNames) {
  writePackage("", document("<CALayer name=\"root\"/>"));
  const Object package = load();
  ASSERT_TRUE(package);
  EXPECT_EQ(error, "");
  EXPECT_EQ(text(send<Object, "name">(send<Object, "rootLayer">(package))), "root");
}

TEST_F(Packages, TurnTheFlagOfTheirGeometryAround) {
  writePackage("<key>geometryFlipped</key><true/>", document("<CALayer/>"));
  EXPECT_FALSE(isFlipped(load()));
  writePackage("<key>geometryFlipped</key><false/>", document("<CALayer/>"));
  EXPECT_TRUE(isFlipped(load()));
  writePackage("", document("<CALayer/>"));
  EXPECT_TRUE(isFlipped(load()));
}

TEST_F(Packages, PublishNames) {
  writePackage("<key>publishedObjectNames</key><array><string>#1</string><true/></array>",
               document("<CALayer/>"));
  const Object names = send<Object, "publishedObjectNames">(load());
  ASSERT_EQ((send<unsigned long, "count">(names)), 1UL);
  EXPECT_EQ(text(send<Object, "objectAtIndex:">(names, 0UL)), "#1");
}

TEST_F(Packages, MayBeADocumentAlone) {
  write("alone.caml", document("<CALayer name=\"alone\"/>"));
  const Object package = load("com.apple.coreanimation-xml", "/var/Test.ca/alone.caml");
  EXPECT_EQ(text(send<Object, "name">(send<Object, "rootLayer">(package))), "alone");
}

TEST_F(Packages, SayWhatIsWrongAndWhere) {
  EXPECT_FALSE(load());
  EXPECT_EQ(error.rfind("/var/Test.ca/index.xml: ", 0), 0U) << error;

  writePackage("",
               document("<CALayer><sublayers>\n<CALayer opacity=\"x\"/></sublayers></CALayer>"));
  EXPECT_FALSE(load());
  EXPECT_EQ(error, "/var/Test.ca/main.caml:2:2: expected a number, found \"x\"");

  writePackage("", document("<CAState name=\"on\"/>"));
  EXPECT_FALSE(load());
  EXPECT_EQ(error, "/var/Test.ca/main.caml:1:1: expected a layer in <caml>");
  EXPECT_EQ(code, 3);

  std::filesystem::remove(phone.file("/var/Test.ca/main.caml"));
  EXPECT_FALSE(load());
  EXPECT_EQ(error, "/var/Test.ca/main.caml: there is no such file");

  EXPECT_FALSE(load("com.apple.coreanimation-archive"));
  EXPECT_EQ(error, "packages of the type com.apple.coreanimation-archive cannot be read");
  EXPECT_EQ(domain, "CoreAnimationErrorDomain");
  EXPECT_EQ(code, 2);
}

TEST_F(Packages, KeepTheirDocumentInside) {
  for (const char* name : {"../main.caml", "/etc/passwd", ""}) {
    write("index.xml", std::string("<plist version=\"1.0\"><dict><key>rootDocument</key><string>") +
                           name + "</string></dict></plist>");
    EXPECT_FALSE(load()) << name;
    EXPECT_EQ(error, "/var/Test.ca/index.xml: expected a file of the package as rootDocument");
  }
  write("index.xml", "<plist version=\"1.0\"><array/></plist>");
  EXPECT_FALSE(load());
  EXPECT_EQ(error, "/var/Test.ca/index.xml: expected a dictionary");
}

TEST_F(Packages, NeedNobodyWhoAsksForTheError) {
  const Object url = send<Object, "fileURLWithPath:">(cls("NSURL"), string("/none"));
  EXPECT_FALSE((send<Object, "packageWithContentsOfURL:type:options:error:">(
      cls("CAPackage"), url, string("com.apple.coreanimation-bundle"), Object(),
      static_cast<id*>(nullptr))));
}

}  // namespace
}  // namespace sim
