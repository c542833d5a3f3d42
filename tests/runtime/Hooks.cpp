// MSHookMessageEx.
#include <gtest/gtest.h>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

int one(id, SEL) {
  return 1;
}
int two(id, SEL) {
  return 2;
}

IMP previous;
int addTen(id self, SEL selector) {
  return reinterpret_cast<int (*)(id, SEL)>(previous)(self, selector) + 10;
}

class Hooks : public testing::Test {
 protected:
  void SetUp() override {
    previous = nullptr;
    addMethod(base_, "number", &one);
  }
  void TearDown() override {
    objc_release(inBase_);
    objc_release(inDerived_);
  }

  Class base_ = makeClass("Base");
  Class derived_ = makeClass("Derived", base_);
  id inBase_ = make(base_);
  id inDerived_ = make(derived_);
};

TEST_F(Hooks, replaceTheClassesOwnMethod) {
  ASSERT_EQ(send<int>(inDerived_, "number"), 1);
  MSHookMessageEx(base_, sel("number"), asImplementation(&addTen), &previous);
  EXPECT_EQ(previous, asImplementation(&one));
  EXPECT_EQ(send<int>(inBase_, "number"), 11);
  EXPECT_EQ(send<int>(inDerived_, "number"), 11);
}

TEST_F(Hooks, anInheritedMethodGetsAnOverride) {
  ASSERT_EQ(send<int>(inDerived_, "number"), 1);
  MSHookMessageEx(derived_, sel("number"), asImplementation(&addTen), &previous);
  EXPECT_EQ(previous, asImplementation(&one));
  EXPECT_EQ(send<int>(inBase_, "number"), 1);
  EXPECT_EQ(send<int>(inDerived_, "number"), 11);
  EXPECT_STREQ(method_getTypeEncoding(class_getInstanceMethod(derived_, sel("number"))), "v@:");
}

TEST_F(Hooks, chain) {
  IMP innermost = nullptr;
  MSHookMessageEx(base_, sel("number"), asImplementation(&two), &innermost);
  MSHookMessageEx(base_, sel("number"), asImplementation(&addTen), &previous);
  EXPECT_EQ(innermost, asImplementation(&one));
  EXPECT_EQ(send<int>(inBase_, "number"), 12);
}

TEST_F(Hooks, takeTheMetaclassForClassMethods) {
  addClassMethod(base_, "classNumber", &one);
  MSHookMessageEx(object_getClass(reinterpret_cast<id>(base_)), sel("classNumber"),
                  asImplementation(&addTen), &previous);
  EXPECT_EQ(send<int>(base_, "classNumber"), 11);
}

TEST_F(Hooks, findAClassMethodWhenThereIsNoInstanceMethod) {
  addClassMethod(base_, "classNumber", &one);
  MSHookMessageEx(base_, sel("classNumber"), asImplementation(&addTen), &previous);
  EXPECT_EQ(send<int>(base_, "classNumber"), 11);
  EXPECT_FALSE(class_respondsToSelector(base_, sel("classNumber")));
}

TEST_F(Hooks, ofUnknownMethodsAndNilDoNothing) {
  previous = asImplementation(&two);
  MSHookMessageEx(base_, sel("unheardOf"), asImplementation(&addTen), &previous);
  MSHookMessageEx(nullptr, sel("number"), asImplementation(&addTen), &previous);
  EXPECT_EQ(previous, asImplementation(&two));
  EXPECT_FALSE(class_respondsToSelector(base_, sel("unheardOf")));
}

TEST_F(Hooks, theSlotMayBeNull) {
  MSHookMessageEx(base_, sel("number"), asImplementation(&two), nullptr);
  EXPECT_EQ(send<int>(inBase_, "number"), 2);
}

}  // namespace
