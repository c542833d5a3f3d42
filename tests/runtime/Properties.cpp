#include <gtest/gtest.h>

#include <cstdlib>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

TEST(Properties, attributesReadAsTheCompilerWritesThem) {
  Class cls = makeClass("Attributes");
  const objc_property_attribute_t object[] = {{"T", "@\"A\""}, {"&", ""}, {"N", ""}, {"V", "_p"}};
  const objc_property_attribute_t flag[] = {
      {"T", "B"}, {"R", ""}, {"N", ""}, {"G", "isY"}, {"V", "_y"}};
  const objc_property_attribute_t odd[] = {
      {"T", "q"}, {"", "skipped"}, {"long", "value"}, {"N", nullptr}};
  EXPECT_TRUE(class_addProperty(cls, "p", object, 4));
  EXPECT_TRUE(class_addProperty(cls, "y", flag, 5));
  EXPECT_TRUE(class_addProperty(cls, "odd", odd, 4));
  EXPECT_STREQ(property_getAttributes(class_getProperty(cls, "p")), "T@\"A\",&,N,V_p");
  EXPECT_STREQ(property_getAttributes(class_getProperty(cls, "y")), "TB,R,N,GisY,V_y");
  EXPECT_STREQ(property_getAttributes(class_getProperty(cls, "odd")), "Tq,\"long\"value");
}

TEST(Properties, areAddedOnceOnly) {
  Class cls = makeClass("Once");
  const objc_property_attribute_t integer{"T", "q"};
  const objc_property_attribute_t number{"T", "d"};
  EXPECT_TRUE(class_addProperty(cls, "value", &integer, 1));
  EXPECT_FALSE(class_addProperty(cls, "value", &number, 1));
  EXPECT_STREQ(property_getAttributes(class_getProperty(cls, "value")), "Tq");
  EXPECT_FALSE(class_addProperty(nullptr, "value", &integer, 1));
}

TEST(Properties, attributesWithoutValueAreLeftOut) {
  Class cls = makeClass("Valueless");
  const objc_property_attribute_t attributes[] = {
      {"R", nullptr}, {"T", "q"}, {"N", ""}, {"V", nullptr}};
  EXPECT_TRUE(class_addProperty(cls, "value", attributes, 4));
  EXPECT_STREQ(property_getAttributes(class_getProperty(cls, "value")), "Tq,N");
}

TEST(Properties, areInheritedAndCannotBeRedeclared) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  const objc_property_attribute_t integer{"T", "q"};
  const objc_property_attribute_t number{"T", "d"};
  class_addProperty(base, "value", &integer, 1);
  EXPECT_EQ(class_getProperty(derived, "value"), class_getProperty(base, "value"));
  EXPECT_FALSE(class_addProperty(derived, "value", &number, 1));
  EXPECT_STREQ(property_getAttributes(class_getProperty(derived, "value")), "Tq");
  unsigned int count = 1;
  EXPECT_EQ(class_copyPropertyList(derived, &count), nullptr);
  EXPECT_EQ(count, 0u);
}

TEST(Properties, ofASubclassLeaveTheSuperclassFree) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  const objc_property_attribute_t integer{"T", "q"};
  EXPECT_TRUE(class_addProperty(derived, "value", &integer, 1));
  EXPECT_TRUE(class_addProperty(base, "value", &integer, 1));
}

TEST(Properties, listHoldsOwnOnesNewestFirst) {
  Class cls = objc_allocateClassPair(rootClass(), "PropertyList", 0);
  const objc_property_attribute_t integer{"T", "q"};
  class_addProperty(cls, "first", &integer, 1);
  class_addProperty(cls, "second", &integer, 1);
  objc_registerClassPair(cls);
  class_addProperty(cls, "third", &integer, 1);
  unsigned int count = 0;
  objc_property_t* properties = class_copyPropertyList(cls, &count);
  ASSERT_EQ(count, 3u);
  EXPECT_STREQ(property_getName(properties[0]), "third");
  EXPECT_STREQ(property_getName(properties[1]), "second");
  EXPECT_STREQ(property_getName(properties[2]), "first");
  EXPECT_EQ(properties[3], nullptr);
  std::free(properties);
  EXPECT_EQ(class_copyPropertyList(makeClass("None"), &count), nullptr);
  EXPECT_EQ(count, 0u);
}

TEST(Properties, unknownOnesAreNil) {
  EXPECT_EQ(class_getProperty(makeClass("None"), "value"), nullptr);
  EXPECT_EQ(class_getProperty(nullptr, "value"), nullptr);
  EXPECT_EQ(property_getName(nullptr), nullptr);
  EXPECT_EQ(property_getAttributes(nullptr), nullptr);
}

}  // namespace
