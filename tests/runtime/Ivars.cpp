#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

std::ptrdiff_t offsetOf(Class cls, const char* name) {
  return ivar_getOffset(class_getInstanceVariable(cls, name));
}

TEST(Ivars, areAlignedAndCountIntoTheInstanceSize) {
  Class cls = objc_allocateClassPair(rootClass(), "Aligned", 0);
  EXPECT_EQ(class_getInstanceSize(cls), sizeof(void*));
  EXPECT_TRUE(class_addIvar(cls, "flag", 1, 0, "B"));
  EXPECT_TRUE(class_addIvar(cls, "number", 8, 3, "q"));
  EXPECT_TRUE(class_addIvar(cls, "small", 2, 1, "s"));
  EXPECT_TRUE(class_addIvar(cls, "wide", 32, 4, "{Wide=}"));
  EXPECT_TRUE(class_addIvar(cls, "last", 1, 0, "B"));
  EXPECT_EQ(offsetOf(cls, "flag"), 8);
  EXPECT_EQ(offsetOf(cls, "number"), 16);
  EXPECT_EQ(offsetOf(cls, "small"), 24);
  EXPECT_EQ(offsetOf(cls, "wide"), 32);
  EXPECT_EQ(offsetOf(cls, "last"), 64);
  EXPECT_EQ(class_getInstanceSize(cls), 72u);
  objc_disposeClassPair(cls);
}

TEST(Ivars, ofASubclassFollowThoseOfItsSuperclass) {
  Class base = objc_allocateClassPair(rootClass(), "IvarBase", 0);
  class_addIvar(base, "first", 8, 3, "q");
  objc_registerClassPair(base);
  Class derived = objc_allocateClassPair(base, "IvarDerived", 0);
  class_addIvar(derived, "second", 8, 3, "q");
  objc_registerClassPair(derived);
  EXPECT_EQ(offsetOf(derived, "first"), 8);
  EXPECT_EQ(offsetOf(derived, "second"), 16);
  EXPECT_EQ(class_getInstanceSize(nullptr), 0u);
}

TEST(Ivars, areRefusedAfterRegistrationOnMetaclassesAndForTakenNames) {
  Class cls = objc_allocateClassPair(rootClass(), "Refusing", 0);
  EXPECT_TRUE(class_addIvar(cls, "number", 8, 3, "q"));
  EXPECT_FALSE(class_addIvar(cls, "number", 8, 3, "q"));
  EXPECT_FALSE(class_addIvar(object_getClass(reinterpret_cast<id>(cls)), "other", 8, 3, "q"));
  objc_registerClassPair(cls);
  EXPECT_FALSE(class_addIvar(cls, "late", 8, 3, "q"));
  EXPECT_FALSE(class_addIvar(nullptr, "number", 8, 3, "q"));
}

TEST(Ivars, knowTheirNameAndType) {
  Class cls = objc_allocateClassPair(rootClass(), "Described", 0);
  class_addIvar(cls, "_title", 8, 3, "@\"NSString\"");
  const Ivar ivar = class_getInstanceVariable(cls, "_title");
  EXPECT_STREQ(ivar_getName(ivar), "_title");
  EXPECT_STREQ(ivar_getTypeEncoding(ivar), "@\"NSString\"");
  EXPECT_EQ(class_getInstanceVariable(cls, "_other"), nullptr);
  EXPECT_EQ(ivar_getName(nullptr), nullptr);
  EXPECT_EQ(ivar_getTypeEncoding(nullptr), nullptr);
  EXPECT_EQ(ivar_getOffset(nullptr), 0);
  objc_disposeClassPair(cls);
}

TEST(Ivars, listHoldsOwnOnesInOrder) {
  Class cls = objc_allocateClassPair(rootClass(), "IvarList", 0);
  class_addIvar(cls, "first", 8, 3, "q");
  class_addIvar(cls, "second", 8, 3, "q");
  unsigned int count = 0;
  Ivar* ivars = class_copyIvarList(cls, &count);
  ASSERT_EQ(count, 2u);
  EXPECT_STREQ(ivar_getName(ivars[0]), "first");
  EXPECT_STREQ(ivar_getName(ivars[1]), "second");
  std::free(ivars);
  EXPECT_EQ(class_copyIvarList(rootClass(), &count), nullptr);
  EXPECT_EQ(count, 0u);
  objc_disposeClassPair(cls);
}

TEST(Ivars, startAsZeroAndHoldObjectsWithoutRetainingThem) {
  Class cls = objc_allocateClassPair(rootClass(), "Holding", 0);
  class_addIvar(cls, "_other", sizeof(id), 3, "@");
  objc_registerClassPair(cls);
  id object = make(cls);
  id other = make(rootClass());
  const Ivar ivar = class_getInstanceVariable(cls, "_other");
  EXPECT_EQ(object_getIvar(object, ivar), nullptr);
  object_setIvar(object, ivar, other);
  EXPECT_EQ(object_getIvar(object, ivar), other);
  id stored = nullptr;
  std::memcpy(&stored, reinterpret_cast<char*>(object) + ivar_getOffset(ivar), sizeof stored);
  EXPECT_EQ(stored, other);
  EXPECT_EQ(send<std::size_t>(other, "retainCount"), 1u);
  EXPECT_EQ(object_getIvar(nullptr, ivar), nullptr);
  EXPECT_EQ(object_getIvar(object, nullptr), nullptr);
  objc_release(other);
  objc_release(object);
}

TEST(Ivars, extraBytesFollowTheInstanceAndAreZero) {
  Class cls = objc_allocateClassPair(rootClass(), "Indexed", 16);
  class_addIvar(cls, "number", 8, 3, "q");
  objc_registerClassPair(cls);
  constexpr std::size_t kExtra = 4096;
  id object = class_createInstance(cls, kExtra);
  char* bytes = reinterpret_cast<char*>(object) + class_getInstanceSize(cls);
  for (std::size_t i = 0; i < kExtra; ++i) {
    ASSERT_EQ(bytes[i], 0);
    bytes[i] = 1;
  }
  objc_release(object);
}

}  // namespace
