// Classes by name: what was found is kept, an absence is not.
#include "objc/ClassLookup.h"

#include <gtest/gtest.h>

namespace {

Class makeClass(const char* name) {
  Class made = objc_allocateClassPair(objc_getClass("NSObject"), name, 0);
  objc_registerClassPair(made);
  return made;
}

TEST(ClassLookup, FindsClasses) {
  EXPECT_NE(objc::classNamed<"NSObject">(), nullptr);
  EXPECT_EQ(objc::classNamed<"NSObject">(), objc_getClass("NSObject"));
}

TEST(ClassLookup, FindsAClassThatCameLater) {
  const auto lookUp = [] { return objc::classNamed<"Latecomer">(); };
  EXPECT_EQ(lookUp(), nullptr);
  Class late = makeClass("Latecomer");
  EXPECT_EQ(lookUp(), late);
}

TEST(ClassLookup, LooksAClassUpOnce) {
  const auto lookUp = [] { return objc::classNamed<"Passing">(); };
  Class passing = makeClass("Passing");
  EXPECT_EQ(lookUp(), passing);
  objc_disposeClassPair(passing);
  EXPECT_EQ(objc_getClass("Passing"), nullptr);
  EXPECT_EQ(lookUp(), passing);
}

}  // namespace
