#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

Protocol* makeProtocol(const char* name, Protocol* adopted = nullptr) {
  Protocol* protocol = objc_allocateProtocol(name);
  protocol_addProtocol(protocol, adopted);
  objc_registerProtocol(protocol);
  return protocol;
}

bool conforms(Class cls, Protocol* protocol) {
  return send<bool>(cls, "conformsToProtocol:", protocol);
}

TEST(Protocols, areFoundByNameOnceTheyAreRegistered) {
  EXPECT_EQ(objc_getProtocol("Unheard"), nullptr);
  EXPECT_EQ(objc_getProtocol(nullptr), nullptr);
  Protocol* protocol = objc_allocateProtocol("Found");
  ASSERT_NE(protocol, nullptr);
  EXPECT_EQ(objc_getProtocol("Found"), nullptr);
  objc_registerProtocol(protocol);
  EXPECT_EQ(objc_getProtocol("Found"), protocol);
  EXPECT_STREQ(protocol_getName(protocol), "Found");
  EXPECT_EQ(objc_allocateProtocol("Found"), nullptr);
  EXPECT_EQ(objc_allocateProtocol(nullptr), nullptr);
}

TEST(Protocols, areObjectsThatLastForever) {
  Protocol* protocol = makeProtocol("Lasting");
  EXPECT_STREQ(object_getClassName(protocol), "Protocol");
  objc_release(protocol);
  objc_release(protocol);
  EXPECT_EQ(objc_retain(protocol), protocol);
  EXPECT_EQ(objc_autorelease(protocol), protocol);
  EXPECT_TRUE((send<bool>(protocol, "isKindOfClass:", rootClass())));
  EXPECT_EQ(make(objc_getClass("Protocol")), nullptr);
}

TEST(Protocols, areAdoptedByClasses) {
  Protocol* protocol = makeProtocol("Adopted");
  Class cls = makeClass("Adopting");
  EXPECT_FALSE(class_conformsToProtocol(cls, protocol));
  EXPECT_TRUE(class_addProtocol(cls, protocol));
  EXPECT_TRUE(class_conformsToProtocol(cls, protocol));
  EXPECT_FALSE(class_addProtocol(cls, protocol));
  EXPECT_TRUE(conforms(cls, protocol));
}

TEST(Protocols, ofASuperclassCountForTheMethodOnly) {
  Protocol* protocol = makeProtocol("Inherited");
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  class_addProtocol(base, protocol);
  EXPECT_FALSE(class_conformsToProtocol(derived, protocol));
  EXPECT_TRUE(conforms(derived, protocol));
  id object = make(derived);
  EXPECT_TRUE((send<bool>(object, "conformsToProtocol:", protocol)));
  EXPECT_FALSE((send<bool>(object, "conformsToProtocol:", makeProtocol("Foreign"))));
  objc_release(object);
  EXPECT_TRUE(class_addProtocol(derived, protocol));
}

TEST(Protocols, adoptOtherProtocols) {
  Protocol* inner = makeProtocol("Inner");
  Protocol* outer = makeProtocol("Outer", makeProtocol("Between", inner));
  EXPECT_TRUE(protocol_conformsToProtocol(outer, inner));
  EXPECT_FALSE(protocol_conformsToProtocol(inner, outer));
  EXPECT_TRUE(protocol_isEqual(inner, inner));
  EXPECT_FALSE(protocol_isEqual(inner, outer));
  Class cls = makeClass("Adopting");
  class_addProtocol(cls, outer);
  EXPECT_TRUE(class_conformsToProtocol(cls, inner));
  EXPECT_FALSE(class_addProtocol(cls, inner));
}

TEST(Protocols, areTheSameWhenTheirNamesAre) {
  Protocol* first = objc_allocateProtocol("Twice");
  Protocol* second = objc_allocateProtocol("Twice");
  objc_registerProtocol(first);
  testing::internal::CaptureStderr();
  objc_registerProtocol(second);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "objc: protocol Twice is registered already\n");
  EXPECT_EQ(objc_getProtocol("Twice"), first);
  EXPECT_TRUE(protocol_isEqual(first, second));
}

TEST(Protocols, growOnlyUntilTheyAreRegistered) {
  Protocol* finished = makeProtocol("Finished");
  Protocol* unfinished = objc_allocateProtocol("Unfinished");
  Protocol* other = objc_allocateProtocol("Other");
  testing::internal::CaptureStderr();
  protocol_addProtocol(finished, makeProtocol("Addition"));
  protocol_addProtocol(unfinished, other);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "objc: protocol Finished is registered: nothing can be added\n"
            "objc: protocol Other is not registered: it cannot be added\n");
  EXPECT_FALSE(protocol_conformsToProtocol(finished, objc_getProtocol("Addition")));
  EXPECT_FALSE(protocol_conformsToProtocol(unfinished, other));
  objc_registerProtocol(unfinished);
  objc_registerProtocol(other);
}

TEST(Protocols, areListedNewestFirst) {
  Class cls = makeClass("Listing");
  Protocol* first = makeProtocol("First");
  Protocol* second = makeProtocol("Second");
  class_addProtocol(cls, first);
  class_addProtocol(cls, second);
  unsigned int count = 0;
  Protocol** list = class_copyProtocolList(cls, &count);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(list[0], second);
  EXPECT_EQ(list[1], first);
  EXPECT_EQ(list[2], nullptr);
  std::free(list);
  EXPECT_EQ(class_copyProtocolList(makeClass("None"), &count), nullptr);
  EXPECT_EQ(class_copyProtocolList(nullptr, &count), nullptr);
}

TEST(Protocols, theRootClassHasOneOfItsName) {
  EXPECT_TRUE(class_conformsToProtocol(rootClass(), objc_getProtocol("NSObject")));
  EXPECT_TRUE(conforms(makeClass("Any"), objc_getProtocol("NSObject")));
}

TEST(Protocols, nilIsNone) {
  Protocol* protocol = makeProtocol("Some");
  EXPECT_STREQ(protocol_getName(nullptr), "nil");
  EXPECT_FALSE(class_addProtocol(nullptr, protocol));
  EXPECT_FALSE(class_addProtocol(rootClass(), nullptr));
  EXPECT_FALSE(class_conformsToProtocol(nullptr, protocol));
  EXPECT_FALSE(class_conformsToProtocol(rootClass(), nullptr));
  EXPECT_FALSE(conforms(rootClass(), nullptr));
  EXPECT_FALSE(protocol_conformsToProtocol(nullptr, protocol));
  EXPECT_FALSE(protocol_conformsToProtocol(protocol, nullptr));
  objc_registerProtocol(nullptr);
}

}  // namespace
