#include <dlfcn.h>

#include <thread>

#include "simulator/foundation/NSLog.h"
#include "simulator/foundation/NSProcessInfo.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using ProcessTest = FoundationTest;

TEST_F(ProcessTest, knowsItsNameAndSystem) {
  const Object info = send<Object, "processInfo">(cls("NSProcessInfo"));
  EXPECT_EQ(text(send<Object, "processName">(info)), "SpringBoard");
  const auto version = send<NSOperatingSystemVersion, "operatingSystemVersion">(info);
  EXPECT_EQ(version.majorVersion, 15);
  EXPECT_EQ(version.minorVersion, 4);
  EXPECT_EQ(version.patchVersion, 0);
  const auto isAtLeast = [&](long major, long minor) {
    return send<bool, "isOperatingSystemAtLeastVersion:">(
        info, NSOperatingSystemVersion{major, minor, 0});
  };
  EXPECT_TRUE(isAtLeast(15, 4));
  EXPECT_TRUE(isAtLeast(14, 9));
  EXPECT_FALSE(isAtLeast(15, 5));
  const double before = send<double, "systemUptime">(info);
  advance(2);
  EXPECT_EQ((send<double, "systemUptime">(info)), before + 2);
}

TEST_F(ProcessTest, tellsItsMainThreadApart) {
  EXPECT_TRUE((send<bool, "isMainThread">(cls("NSThread"))));
  const Object main = send<Object, "mainThread">(cls("NSThread"));
  EXPECT_EQ((send<Object, "currentThread">(cls("NSThread"))), main);
  bool isMain = true;
  bool isSame = true;
  std::thread([&] {
    const objc::AutoreleasePool pool;
    isMain = send<bool, "isMainThread">(cls("NSThread"));
    isSame = send<Object, "currentThread">(cls("NSThread")) == main;
  }).join();
  EXPECT_FALSE(isMain);
  EXPECT_FALSE(isSame);
}

TEST_F(ProcessTest, logsToTheJournal) {
  NSLog(string("%@ at %.1f").get(), string("now").get(), 0.5);
  EXPECT_EQ(journal(), std::vector<std::string>{"log \"now at 0.5\""});
}

TEST_F(ProcessTest, exportsItsFunctionsAndConstants) {
  for (const char* name : {"NSLog", "NSLogv", "NSDefaultRunLoopMode", "NSRunLoopCommonModes"})
    EXPECT_NE(dlsym(RTLD_DEFAULT, name), nullptr) << name;
  const auto* common = static_cast<id*>(dlsym(RTLD_DEFAULT, "NSRunLoopCommonModes"));
  EXPECT_EQ(text(Object(*common)), "kCFRunLoopCommonModes");
}

}  // namespace
}  // namespace sim
