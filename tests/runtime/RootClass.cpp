// NSObject.
#include <gtest/gtest.h>

#include <cstdint>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

id theClass(Class cls) {
  return reinterpret_cast<id>(cls);
}

class RootClass : public testing::Test {
 protected:
  void TearDown() override { objc_release(object_); }

  Class base_ = makeClass("Base");
  Class derived_ = makeClass("Derived", base_);
  id object_ = make(derived_);
};

TEST_F(RootClass, allocInitAndNewMakeInstances) {
  id allocated = send<id>(send<id>(base_, "alloc"), "init");
  id made = send<id>(base_, "new");
  id fromC = objc_alloc(base_);
  for (id object : {allocated, made, fromC}) {
    EXPECT_EQ(object_getClass(object), base_);
    EXPECT_EQ(send<std::size_t>(object, "retainCount"), 1u);
    objc_release(object);
  }
  EXPECT_EQ(objc_alloc(nullptr), nullptr);
  EXPECT_EQ(objc_alloc_init(nullptr), nullptr);
}

int initCount = 0;
id countingInit(id self, SEL) {
  ++initCount;
  return self;
}

TEST_F(RootClass, newAndAllocInitCallTheClassesOwnInit) {
  addMethod(base_, "init", &countingInit, "@@:");
  initCount = 0;
  objc_release(send<id>(base_, "new"));
  objc_release(objc_alloc_init(base_));
  EXPECT_EQ(initCount, 2);
}

TEST_F(RootClass, knowsClassAndSuperclass) {
  EXPECT_EQ(send<Class>(object_, "class"), derived_);
  EXPECT_EQ(send<Class>(derived_, "class"), derived_);
  EXPECT_EQ(send<Class>(object_, "superclass"), base_);
  EXPECT_EQ(send<Class>(derived_, "superclass"), base_);
}

TEST_F(RootClass, knowsItsKind) {
  EXPECT_TRUE((send<bool>(object_, "isKindOfClass:", derived_)));
  EXPECT_TRUE((send<bool>(object_, "isKindOfClass:", base_)));
  EXPECT_FALSE((send<bool>(object_, "isKindOfClass:", makeClass("Stranger"))));
  EXPECT_FALSE((send<bool>(object_, "isKindOfClass:", Class{nullptr})));
  EXPECT_TRUE((send<bool>(object_, "isMemberOfClass:", derived_)));
  EXPECT_FALSE((send<bool>(object_, "isMemberOfClass:", base_)));
  EXPECT_TRUE((send<bool>(derived_, "isSubclassOfClass:", base_)));
  EXPECT_FALSE((send<bool>(base_, "isSubclassOfClass:", derived_)));
  // A class object is an instance of its metaclass, which inherits from the root class.
  EXPECT_TRUE((send<bool>(derived_, "isKindOfClass:", rootClass())));
  EXPECT_FALSE((send<bool>(derived_, "isKindOfClass:", base_)));
  EXPECT_FALSE(send<bool>(object_, "isProxy"));
}

TEST_F(RootClass, knowsWhatItRespondsTo) {
  EXPECT_TRUE((send<bool>(object_, "respondsToSelector:", sel("retain"))));
  EXPECT_FALSE((send<bool>(object_, "respondsToSelector:", sel("alloc"))));
  EXPECT_TRUE((send<bool>(derived_, "respondsToSelector:", sel("alloc"))));
  EXPECT_TRUE((send<bool>(derived_, "respondsToSelector:", sel("isEqual:"))));
  EXPECT_TRUE((send<bool>(derived_, "instancesRespondToSelector:", sel("init"))));
  EXPECT_FALSE((send<bool>(derived_, "instancesRespondToSelector:", sel("alloc"))));
}

TEST_F(RootClass, handsOutImplementations) {
  addMethod(base_, "init", &countingInit, "@@:");
  const IMP expected = asImplementation(&countingInit);
  EXPECT_EQ((send<IMP>(object_, "methodForSelector:", sel("init"))), expected);
  EXPECT_EQ((send<IMP>(derived_, "instanceMethodForSelector:", sel("init"))), expected);
}

TEST_F(RootClass, isEqualToItselfOnly) {
  id other = make(derived_);
  EXPECT_TRUE((send<bool>(object_, "isEqual:", object_)));
  EXPECT_FALSE((send<bool>(object_, "isEqual:", other)));
  EXPECT_NE(send<std::size_t>(object_, "hash"), send<std::size_t>(other, "hash"));
  EXPECT_EQ(send<std::size_t>(object_, "hash"), send<std::size_t>(object_, "hash"));
  EXPECT_EQ(send<id>(object_, "self"), object_);
  objc_release(other);
}

id takesTwo(id, SEL, id first, id second) {
  return first != nullptr ? first : second;
}
id takesOne(id, SEL, id first) {
  return first;
}

TEST_F(RootClass, performsSelectors) {
  addMethod(base_, "one:", &takesOne, "@@:@");
  addMethod(base_, "one:two:", &takesTwo, "@@:@@");
  id other = theClass(base_);
  EXPECT_EQ((send<id>(object_, "performSelector:", sel("self"))), object_);
  EXPECT_EQ((send<id>(object_, "performSelector:withObject:", sel("one:"), other)), other);
  EXPECT_EQ((send<id>(object_, "performSelector:withObject:withObject:", sel("one:two:"),
                      id{nullptr}, other)),
            other);
  EXPECT_EQ((send<id>(derived_, "performSelector:", sel("self"))), theClass(derived_));
}

id madeByCopy = nullptr;
id copyWithZone(id, SEL, void* zone) {
  return zone == nullptr ? objc_retain(madeByCopy) : nullptr;
}

TEST_F(RootClass, copiesThroughTheZoneMethods) {
  addMethod(base_, "copyWithZone:", &copyWithZone, "@@:^v");
  addMethod(base_, "mutableCopyWithZone:", &copyWithZone, "@@:^v");
  madeByCopy = make(rootClass());
  EXPECT_EQ(send<id>(object_, "copy"), madeByCopy);
  EXPECT_EQ(send<id>(object_, "mutableCopy"), madeByCopy);
  EXPECT_EQ(send<std::size_t>(madeByCopy, "retainCount"), 3u);
  for (int i = 0; i < 3; ++i) {
    objc_release(madeByCopy);
  }
}

TEST_F(RootClass, classObjectsHaveNoReferenceCount) {
  objc_release(theClass(base_));
  objc_release(theClass(base_));
  EXPECT_EQ(objc_retain(theClass(base_)), theClass(base_));
  EXPECT_EQ(objc_autorelease(theClass(base_)), theClass(base_));
  EXPECT_EQ(send<id>(base_, "copy"), theClass(base_));
  EXPECT_EQ(send<std::size_t>(base_, "retainCount"), SIZE_MAX);
  // Those of instances would count in memory that is not the class's.
  for (const char* name : {"retain", "release", "autorelease", "retainCount", "dealloc"}) {
    EXPECT_NE(class_getMethodImplementation(object_getClass(theClass(base_)), sel(name)),
              class_getMethodImplementation(base_, sel(name)))
        << name;
  }
}

TEST_F(RootClass, objectFunctionsAgree) {
  EXPECT_EQ(object_getClass(object_), derived_);
  EXPECT_EQ(object_getClass(nullptr), nullptr);
  EXPECT_STREQ(object_getClassName(object_), class_getName(derived_));
  EXPECT_STREQ(object_getClassName(nullptr), "nil");
  EXPECT_FALSE(object_isClass(object_));
  EXPECT_TRUE(object_isClass(theClass(derived_)));
  EXPECT_FALSE(object_isClass(nullptr));
}

int answerOfBase(id, SEL) {
  return 1;
}
int answerOfDerived(id, SEL) {
  return 2;
}

TEST_F(RootClass, setClassChangesWhoAnswers) {
  addMethod(base_, "answer", &answerOfBase);
  addMethod(derived_, "answer", &answerOfDerived);
  EXPECT_EQ(send<int>(object_, "answer"), 2);
  EXPECT_EQ(object_setClass(object_, base_), derived_);
  EXPECT_EQ(send<int>(object_, "answer"), 1);
  EXPECT_EQ(object_setClass(nullptr, base_), nullptr);
}

TEST_F(RootClass, createInstanceMakesNothingOfMetaclasses) {
  EXPECT_EQ(class_createInstance(nullptr, 0), nullptr);
  EXPECT_EQ(class_createInstance(object_getClass(theClass(base_)), 0), nullptr);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(object_) % 16, 0u);
}

}  // namespace
