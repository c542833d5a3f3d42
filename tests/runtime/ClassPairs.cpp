// Making, registering, finding and disposing of classes.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

// Before main, in a static initialiser, the root class is there.
const Class rootSeenByStaticInitializer = objc_getClass("NSObject");

TEST(ClassPairs, rootClassIsThereForStaticInitializers) {
  ASSERT_NE(rootSeenByStaticInitializer, nullptr);
  EXPECT_EQ(rootSeenByStaticInitializer, objc_getClass("NSObject"));
}

TEST(ClassPairs, metaclassesCloseTheLoop) {
  Class root = rootClass();
  Class rootMeta = object_getClass(reinterpret_cast<id>(root));
  Class cls = makeClass("Sub");
  Class meta = object_getClass(reinterpret_cast<id>(cls));
  EXPECT_EQ(object_getClass(reinterpret_cast<id>(rootMeta)), rootMeta);
  EXPECT_EQ(class_getSuperclass(rootMeta), root);
  EXPECT_EQ(class_getSuperclass(root), nullptr);
  EXPECT_EQ(class_getSuperclass(meta), rootMeta);
  EXPECT_EQ(object_getClass(reinterpret_cast<id>(meta)), rootMeta);
  EXPECT_TRUE(class_isMetaClass(meta));
  EXPECT_FALSE(class_isMetaClass(cls));
  EXPECT_FALSE(class_isMetaClass(nullptr));
}

TEST(ClassPairs, aNewRootHasALoopOfItsOwn) {
  Class root = makeClass("OtherRoot", nullptr);
  Class meta = objc_getMetaClass(class_getName(root));
  EXPECT_EQ(object_getClass(reinterpret_cast<id>(meta)), meta);
  EXPECT_EQ(class_getSuperclass(meta), root);
}

TEST(ClassPairs, areFoundOnceRegistered) {
  Class cls = objc_allocateClassPair(rootClass(), "Late", 0);
  EXPECT_EQ(objc_getClass("Late"), nullptr);
  EXPECT_EQ(objc_lookUpClass("Late"), nullptr);
  objc_registerClassPair(cls);
  EXPECT_EQ(objc_getClass("Late"), cls);
  EXPECT_EQ(objc_lookUpClass("Late"), cls);
  EXPECT_EQ(objc_getMetaClass("Late"), object_getClass(reinterpret_cast<id>(cls)));
}

TEST(ClassPairs, unknownAndNullNamesAreNil) {
  EXPECT_EQ(objc_getClass("NobodyMadeThis"), nullptr);
  EXPECT_EQ(objc_getClass(nullptr), nullptr);
  EXPECT_EQ(objc_getMetaClass("NobodyMadeThis"), nullptr);
}

TEST(ClassPairs, takenNamesGiveNil) {
  Class cls = objc_allocateClassPair(rootClass(), "Taken", 0);
  EXPECT_EQ(objc_allocateClassPair(rootClass(), "Taken", 0), nullptr);
  objc_registerClassPair(cls);
  EXPECT_EQ(objc_allocateClassPair(rootClass(), "Taken", 0), nullptr);
  EXPECT_EQ(objc_allocateClassPair(rootClass(), "NSObject", 0), nullptr);
}

TEST(ClassPairs, anUnfinishedSuperclassGivesNil) {
  Class cls = objc_allocateClassPair(rootClass(), "Unfinished", 0);
  EXPECT_EQ(objc_allocateClassPair(cls, "Early", 0), nullptr);
  objc_disposeClassPair(cls);
}

TEST(ClassPairs, namesComeBack) {
  Class cls = objc_allocateClassPair(rootClass(), "Named", 0);
  EXPECT_STREQ(class_getName(cls), "Named");
  EXPECT_STREQ(class_getName(object_getClass(reinterpret_cast<id>(cls))), "Named");
  EXPECT_STREQ(class_getName(nullptr), "nil");
  objc_disposeClassPair(cls);
}

TEST(ClassPairs, listHoldsEveryRegisteredClassOnce) {
  Class first = makeClass("Listed");
  Class second = makeClass("Listed");
  std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
  const int count = objc_getClassList(classes.data(), static_cast<int>(classes.size()));
  EXPECT_EQ(static_cast<std::size_t>(count), classes.size());
  for (Class cls : {rootClass(), first, second}) {
    EXPECT_EQ(std::count(classes.begin(), classes.end(), cls), 1);
  }
}

TEST(ClassPairs, listFillsNoMoreThanAsked) {
  makeClass("Listed");
  Class buffer[2] = {nullptr, nullptr};
  EXPECT_GT(objc_getClassList(buffer, 1), 1);
  EXPECT_NE(buffer[0], nullptr);
  EXPECT_EQ(buffer[1], nullptr);
}

TEST(ClassPairs, disposedClassesAreGoneAndTheirNamesFree) {
  Class cls = objc_allocateClassPair(rootClass(), "Disposed", 0);
  objc_registerClassPair(cls);
  send<Class>(cls, "class");  // fills a cache
  objc_disposeClassPair(cls);
  EXPECT_EQ(objc_getClass("Disposed"), nullptr);
  Class again = objc_allocateClassPair(rootClass(), "Disposed", 0);
  EXPECT_NE(again, nullptr);
  objc_disposeClassPair(again);
}

TEST(ClassPairs, aDisposedClassLeavesItsSuperclassUsable) {
  Class base = makeClass("Base");
  Class derived = objc_allocateClassPair(base, "Derived", 0);
  objc_disposeClassPair(derived);
  // Adding a method walks the subclasses.
  addMethod(
      base, "self", +[](id self, SEL) { return self; }, "@@:");
  id object = make(base);
  EXPECT_EQ(send<id>(object, "self"), object);
  objc_release(object);
  objc_disposeClassPair(base);  // fatal if it still counted the subclass
}

TEST(ClassPairsDeathTest, disposingOfAClassWithSubclassesIsFatal) {
  Class base = makeClass("Base");
  makeClass("Derived", base);
  EXPECT_DEATH(objc_disposeClassPair(base), "Base.* still has the subclass Derived");
}

TEST(ClassPairsDeathTest, registeringTwiceIsFatal) {
  Class cls = makeClass("Twice");
  EXPECT_DEATH(objc_registerClassPair(cls), "Twice.* is registered already");
}

}  // namespace
