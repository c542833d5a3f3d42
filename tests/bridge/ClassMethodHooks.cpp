// Hooks on class methods: the class is given, and a class method is found where no instance
// method has the name.
#include <gtest/gtest.h>

#include "objc/Class.h"
#include "objc/Hook.h"

namespace {

using objc::Object;
using objc::Original;

struct Center : objc::Implementation<Center> {
  static long classNumber() { return 10; }
  static long bothOfClass() { return 20; }
  long bothOfInstance() { return 30; }

  static Class registerClass() {
    return objc::ClassBuilder<Center>("Center", "NSObject")
        .classMethod<"number", &Center::classNumber>()
        .classMethod<"both", &Center::bothOfClass>()
        .method<"both", &Center::bothOfInstance>()
        .finish();
  }
};
struct SubCenter : objc::Implementation<SubCenter> {
  static Class registerClass() {
    return objc::ClassBuilder<SubCenter>("SubCenter", "Center").finish();
  }
};

Object reached;
long plusOne(Original<long(Object)> original, Object self) {
  reached = self;
  return original(self) + 1;
}

struct ClassMethodHooks : testing::Test {
  void SetUp() override {
    if (Center::cls() != nullptr) GTEST_SKIP() << "hooks stay: run each test in its own process";
    ASSERT_TRUE(Center::registerClass());
    ASSERT_TRUE(SubCenter::registerClass());
  }
  static long number(Class cls) { return objc::send<long, "number">(cls); }
};

TEST_F(ClassMethodHooks, ReplaceTheClassMethod) {
  EXPECT_EQ(number(Center::cls()), 10);
  EXPECT_TRUE((objc::hook<"Center", "number", plusOne>()));
  EXPECT_EQ(number(Center::cls()), 11);
  EXPECT_EQ(reached.get(), reinterpret_cast<id>(Center::cls()));
  EXPECT_FALSE(objc::respondsTo<"number">(Center::make().get()));
}

TEST_F(ClassMethodHooks, ReachSubclasses) {
  EXPECT_EQ(number(SubCenter::cls()), 10);
  EXPECT_TRUE((objc::hook<"Center", "number", plusOne>()));
  EXPECT_EQ(number(SubCenter::cls()), 11);
  EXPECT_EQ(reached.get(), reinterpret_cast<id>(SubCenter::cls()));
}

TEST_F(ClassMethodHooks, OnAnInheritedOneLeaveTheBaseAlone) {
  EXPECT_TRUE((objc::hook<"SubCenter", "number", plusOne>()));
  EXPECT_EQ(number(SubCenter::cls()), 11);
  EXPECT_EQ(number(Center::cls()), 10);
}

TEST_F(ClassMethodHooks, PreferTheInstanceMethodOfTheName) {
  EXPECT_TRUE((objc::hook<"Center", "both", plusOne>()));
  EXPECT_EQ((objc::send<long, "both">(Center::make().get())), 31);
  EXPECT_EQ((objc::send<long, "both">(Center::cls())), 20);
}

}  // namespace
