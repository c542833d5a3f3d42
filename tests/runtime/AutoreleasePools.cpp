#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <thread>

#include "TestClasses.h"
#include "simulator/runtime/LiveObjects.h"

using namespace testing_runtime;
using sim::runtime::liveInstanceCount;

namespace {

class AutoreleasePools : public testing::Test {
 protected:
  Class cls_ = makeClass("Pooled");
};

TEST_F(AutoreleasePools, releaseAtTheirEnd) {
  void* pool = objc_autoreleasePoolPush();
  id object = make(cls_);
  EXPECT_EQ(objc_autorelease(object), object);
  EXPECT_EQ(send<id>(make(cls_), "autorelease") != nullptr, true);
  EXPECT_EQ(liveInstanceCount(cls_), 2u);
  objc_autoreleasePoolPop(pool);
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
}

TEST_F(AutoreleasePools, retainAutoreleaseAddsOneReference) {
  id object = make(cls_);
  void* pool = objc_autoreleasePoolPush();
  EXPECT_EQ(objc_retainAutorelease(object), object);
  EXPECT_EQ(send<std::size_t>(object, "retainCount"), 2u);
  objc_autoreleasePoolPop(pool);
  EXPECT_EQ(send<std::size_t>(object, "retainCount"), 1u);
  objc_release(object);
}

TEST_F(AutoreleasePools, nest) {
  void* outer = objc_autoreleasePoolPush();
  objc_autorelease(make(cls_));
  void* inner = objc_autoreleasePoolPush();
  objc_autorelease(make(cls_));
  objc_autoreleasePoolPop(inner);
  EXPECT_EQ(liveInstanceCount(cls_), 1u);
  objc_autoreleasePoolPop(outer);
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
}

TEST_F(AutoreleasePools, anOuterOneTakesTheInnerOnesAlong) {
  void* outer = objc_autoreleasePoolPush();
  objc_autoreleasePoolPush();
  objc_autorelease(make(cls_));
  objc_autoreleasePoolPop(outer);
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
}

Class chainClass;
void deallocThatAutoreleases(id self, SEL) {
  objc_autorelease(make(chainClass));
  object_dispose(self);
}

TEST_F(AutoreleasePools, objectsAutoreleasedWhileEmptyingGoToo) {
  chainClass = makeClass("Chained");
  addMethod(cls_, "dealloc", &deallocThatAutoreleases);
  void* pool = objc_autoreleasePoolPush();
  objc_autorelease(make(cls_));
  objc_autoreleasePoolPop(pool);
  EXPECT_EQ(liveInstanceCount(chainClass), 0u);
}

TEST_F(AutoreleasePools, withoutOneALineIsPrintedAndTheThreadsEndReleases) {
  testing::internal::CaptureStderr();
  std::thread([this] {
    objc_autorelease(make(cls_));
    objc_autorelease(make(cls_));
    EXPECT_EQ(liveInstanceCount(cls_), 2u);
  }).join();
  const std::string printed = testing::internal::GetCapturedStderr();
  const std::size_t first = printed.find("MISSING POOLS");
  EXPECT_NE(first, std::string::npos) << printed;
  EXPECT_NE(printed.find("MISSING POOLS", first + 1), std::string::npos) << printed;
  EXPECT_NE(printed.find(class_getName(cls_)), std::string::npos) << printed;
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
}

// Ends the capture.
std::ptrdiff_t printedLines() {
  const std::string printed = testing::internal::GetCapturedStderr();
  return std::count(printed.begin(), printed.end(), '\n');
}

TEST_F(AutoreleasePools, doNotTakeAlongWhatWasThereBeforeThem) {
  testing::internal::CaptureStderr();
  std::thread([this] {
    objc_autorelease(make(cls_));
    void* pool = objc_autoreleasePoolPush();
    objc_autorelease(make(cls_));
    objc_autoreleasePoolPop(pool);
    EXPECT_EQ(liveInstanceCount(cls_), 1u);
    EXPECT_EQ(printedLines(), 1);
    testing::internal::CaptureStderr();
    objc_autorelease(make(cls_));
    EXPECT_EQ(printedLines(), 1);
  }).join();
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
}

TEST_F(AutoreleasePools, whatIsAutoreleasedAtTheThreadsEndGoesToo) {
  testing::internal::CaptureStderr();
  chainClass = makeClass("Chained");
  addMethod(cls_, "dealloc", &deallocThatAutoreleases);
  std::thread([this] { objc_autorelease(make(cls_)); }).join();
  testing::internal::GetCapturedStderr();
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
  EXPECT_EQ(liveInstanceCount(chainClass), 0u);
}

TEST_F(AutoreleasePools, belongToTheirThread) {
  void* pool = objc_autoreleasePoolPush();
  std::thread([this] {
    void* own = objc_autoreleasePoolPush();
    objc_autorelease(make(cls_));
    objc_autoreleasePoolPop(own);
  }).join();
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
  objc_autoreleasePoolPop(pool);
}

TEST_F(AutoreleasePools, areEmptiedWhenTheirThreadEnds) {
  std::thread([this] {
    objc_autoreleasePoolPush();
    objc_autorelease(make(cls_));
  }).join();
  EXPECT_EQ(liveInstanceCount(cls_), 0u);
}

using AutoreleasePoolsDeathTest = AutoreleasePools;

TEST_F(AutoreleasePoolsDeathTest, poppingTwiceIsFatal) {
  void* outer = objc_autoreleasePoolPush();
  void* inner = objc_autoreleasePoolPush();
  objc_autoreleasePoolPop(inner);
  EXPECT_DEATH(objc_autoreleasePoolPop(inner), "invalid or prematurely freed autorelease pool");
  objc_autoreleasePoolPop(outer);
}

TEST_F(AutoreleasePoolsDeathTest, poppingAPoolWhosePlaceAnObjectTookIsFatal) {
  void* outer = objc_autoreleasePoolPush();
  void* inner = objc_autoreleasePoolPush();
  objc_autoreleasePoolPop(inner);
  objc_autorelease(make(cls_));
  EXPECT_DEATH(objc_autoreleasePoolPop(inner), "invalid or prematurely freed autorelease pool");
  objc_autoreleasePoolPop(outer);
}

}  // namespace
