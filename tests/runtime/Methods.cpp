// Method lists, and what changes them.
#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

int one(id, SEL) {
  return 1;
}
int two(id, SEL) {
  return 2;
}
int three(id, SEL) {
  return 3;
}

TEST(Methods, addedOnceOnly) {
  Class cls = makeClass("Adding");
  EXPECT_TRUE(class_addMethod(cls, sel("number"), asImplementation(&one), "i@:"));
  EXPECT_FALSE(class_addMethod(cls, sel("number"), asImplementation(&two), "i@:"));
  id object = make(cls);
  EXPECT_EQ(send<int>(object, "number"), 1);
  objc_release(object);
}

TEST(Methods, addingOverridesAnInheritedMethod) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(base, "number", &one);
  EXPECT_TRUE(class_addMethod(derived, sel("number"), asImplementation(&two), "i@:"));
  id object = make(derived);
  EXPECT_EQ(send<int>(object, "number"), 2);
  objc_release(object);
}

TEST(Methods, replaceGivesTheOldImplementationAndKeepsItsTypes) {
  Class cls = makeClass("Replacing");
  EXPECT_EQ(class_replaceMethod(cls, sel("number"), asImplementation(&one), "i@:"), nullptr);
  EXPECT_EQ(class_replaceMethod(cls, sel("number"), asImplementation(&two), "wrong"),
            asImplementation(&one));
  const Method method = class_getInstanceMethod(cls, sel("number"));
  EXPECT_STREQ(method_getTypeEncoding(method), "i@:");
  EXPECT_EQ(method_getImplementation(method), asImplementation(&two));
}

TEST(Methods, replacingAnInheritedMethodLeavesTheSuperclassAlone) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(base, "number", &one);
  EXPECT_EQ(class_replaceMethod(derived, sel("number"), asImplementation(&two), "i@:"), nullptr);
  EXPECT_EQ(class_getMethodImplementation(base, sel("number")), asImplementation(&one));
  EXPECT_EQ(class_getMethodImplementation(derived, sel("number")), asImplementation(&two));
}

TEST(Methods, instanceAndClassMethodsAreFoundInTheirOwnChains) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(base, "instanceNumber", &one);
  addClassMethod(base, "classNumber", &two);
  EXPECT_NE(class_getInstanceMethod(derived, sel("instanceNumber")), nullptr);
  EXPECT_EQ(class_getInstanceMethod(derived, sel("classNumber")), nullptr);
  EXPECT_NE(class_getClassMethod(derived, sel("classNumber")), nullptr);
  EXPECT_EQ(class_getClassMethod(derived, sel("instanceNumber")), nullptr);
  EXPECT_EQ(class_getInstanceMethod(nullptr, sel("classNumber")), nullptr);
  EXPECT_EQ(class_getClassMethod(nullptr, sel("classNumber")), nullptr);
  EXPECT_EQ(send<int>(derived, "classNumber"), 2);
}

TEST(Methods, respondsToOwnAndInheritedOnes) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(base, "number", &one);
  EXPECT_TRUE(class_respondsToSelector(derived, sel("number")));
  EXPECT_FALSE(class_respondsToSelector(derived, sel("unheardOf")));
  EXPECT_FALSE(class_respondsToSelector(nullptr, sel("number")));
  EXPECT_FALSE(class_respondsToSelector(derived, nullptr));
}

TEST(Methods, accessorsOfAMethod) {
  Class cls = makeClass("Access");
  addMethod(cls, "number", &one, "i16@0:8");
  const Method method = class_getInstanceMethod(cls, sel("number"));
  EXPECT_EQ(method_getName(method), sel("number"));
  EXPECT_STREQ(method_getTypeEncoding(method), "i16@0:8");
  EXPECT_EQ(method_getImplementation(method), asImplementation(&one));
  EXPECT_EQ(method_getName(nullptr), nullptr);
  EXPECT_EQ(method_getTypeEncoding(nullptr), nullptr);
  EXPECT_EQ(method_getImplementation(nullptr), nullptr);
}

TEST(Methods, setImplementationGivesTheOldOne) {
  Class cls = makeClass("Setting");
  addMethod(cls, "number", &one);
  const Method method = class_getInstanceMethod(cls, sel("number"));
  EXPECT_EQ(method_setImplementation(method, asImplementation(&two)), asImplementation(&one));
  EXPECT_EQ(method_getImplementation(method), asImplementation(&two));
}

TEST(Methods, listHoldsOwnMethodsNewestFirst) {
  Class base = makeClass("Base");
  addMethod(base, "inherited", &one);
  Class derived = objc_allocateClassPair(base, "MethodList", 0);
  addMethod(derived, "first", &one);
  addMethod(derived, "second", &two);
  objc_registerClassPair(derived);
  class_replaceMethod(derived, sel("third"), asImplementation(&three), "i@:");
  class_replaceMethod(derived, sel("first"), asImplementation(&three), "i@:");
  unsigned int count = 77;
  Method* methods = class_copyMethodList(derived, &count);
  ASSERT_EQ(count, 3u);
  EXPECT_EQ(method_getName(methods[0]), sel("third"));
  EXPECT_EQ(method_getName(methods[1]), sel("second"));
  EXPECT_EQ(method_getName(methods[2]), sel("first"));
  EXPECT_EQ(methods[3], nullptr);
  std::free(methods);
}

TEST(Methods, anEmptyListIsNull) {
  unsigned int count = 77;
  EXPECT_EQ(class_copyMethodList(makeClass("Empty"), &count), nullptr);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(class_copyMethodList(nullptr, nullptr), nullptr);
}

TEST(Methods, manyMethodsOutgrowTheCache) {
  Class cls = makeClass("Many");
  id object = make(cls);
  constexpr int kMethods = 200;
  for (int i = 0; i < kMethods; ++i) {
    addMethod(cls, ("method" + std::to_string(i)).c_str(), i % 2 == 0 ? &one : &two);
  }
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < kMethods; ++i) {
      EXPECT_EQ(send<int>(object, ("method" + std::to_string(i)).c_str()), i % 2 + 1);
    }
  }
  objc_release(object);
}

// What all objects answer now, each asked twice: uncached perhaps, and cached.
std::vector<int> answers(std::initializer_list<id> objects) {
  std::vector<int> found;
  for (id object : objects) {
    send<int>(object, "number");
    found.push_back(send<int>(object, "number"));
  }
  return found;
}

class MethodsAfterUse : public testing::Test {
 protected:
  void SetUp() override { addMethod(base_, "number", &one); }
  void TearDown() override {
    for (id object : {inBase_, inMiddle_, inLeaf_}) objc_release(object);
  }

  Class base_ = makeClass("Base");
  Class middle_ = makeClass("Middle", base_);
  Class leaf_ = makeClass("Leaf", middle_);
  id inBase_ = make(base_);
  id inMiddle_ = make(middle_);
  id inLeaf_ = make(leaf_);
};

TEST_F(MethodsAfterUse, replacingReachesTheSubclasses) {
  ASSERT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{1, 1, 1}));
  class_replaceMethod(base_, sel("number"), asImplementation(&two), "i@:");
  EXPECT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{2, 2, 2}));
}

TEST_F(MethodsAfterUse, addingInTheMiddleReachesOnlyWhatIsBelow) {
  ASSERT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{1, 1, 1}));
  addMethod(middle_, "number", &two);
  EXPECT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{1, 2, 2}));
}

TEST_F(MethodsAfterUse, replacingAboveAnOverrideDoesNotReachIt) {
  addMethod(middle_, "number", &two);
  ASSERT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{1, 2, 2}));
  class_replaceMethod(base_, sel("number"), asImplementation(&three), "i@:");
  EXPECT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{3, 2, 2}));
}

TEST_F(MethodsAfterUse, settingTheImplementationReachesTheSubclasses) {
  ASSERT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{1, 1, 1}));
  method_setImplementation(class_getInstanceMethod(leaf_, sel("number")), asImplementation(&two));
  EXPECT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{2, 2, 2}));
}

TEST_F(MethodsAfterUse, exchangeSwapsBoth) {
  addMethod(leaf_, "number", &two);
  ASSERT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{1, 1, 2}));
  method_exchangeImplementations(class_getInstanceMethod(base_, sel("number")),
                                 class_getInstanceMethod(leaf_, sel("number")));
  EXPECT_EQ(answers({inBase_, inMiddle_, inLeaf_}), (std::vector{2, 2, 1}));
}

TEST_F(MethodsAfterUse, replacingAnInstanceMethodOfTheRootReachesClassObjects) {
  addMethod(rootClass(), "rootNumber", &one);
  ASSERT_EQ(send<int>(leaf_, "rootNumber"), 1);
  class_replaceMethod(rootClass(), sel("rootNumber"), asImplementation(&two), "i@:");
  EXPECT_EQ(send<int>(leaf_, "rootNumber"), 2);
}

}  // namespace
