// The parts of a method's type encoding.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

std::string taken(char* text) {
  const std::string copy = text != nullptr ? text : "nil";
  std::free(text);
  return copy;
}

// The result, then all arguments.
std::vector<std::string> partsOf(const char* types) {
  Class cls = makeClass("Typed");
  addMethod(
      cls, "method", +[](id, SEL) {}, types);
  const Method method = class_getInstanceMethod(cls, sel("method"));
  std::vector<std::string> parts = {taken(method_copyReturnType(method))};
  for (unsigned int i = 0; i < method_getNumberOfArguments(method); ++i) {
    parts.push_back(taken(method_copyArgumentType(method, i)));
  }
  EXPECT_EQ(method_copyArgumentType(method, method_getNumberOfArguments(method)), nullptr);
  return parts;
}

using Parts = std::vector<std::string>;

TEST(MethodTypes, withAndWithoutOffsets) {
  EXPECT_EQ(partsOf("v@:"), (Parts{"v", "@", ":"}));
  EXPECT_EQ(partsOf("q32@0:8d16f24"), (Parts{"q", "@", ":", "d", "f"}));
  EXPECT_EQ(partsOf("v20@0:8i+16"), (Parts{"v", "@", ":", "i"}));
}

TEST(MethodTypes, structuresUnionsAndArraysAreOneType) {
  EXPECT_EQ(partsOf("{CGRect={CGPoint=dd}{CGSize=dd}}16@0:8(u=i{s=f})16[4{s=i}]24"),
            (Parts{"{CGRect={CGPoint=dd}{CGSize=dd}}", "@", ":", "(u=i{s=f})", "[4{s=i}]"}));
  EXPECT_EQ(partsOf("v@:{s=\"a}\"i}q"), (Parts{"v", "@", ":", "{s=\"a}\"i}", "q"}));
}

TEST(MethodTypes, pointersAndQualifiersBelongToTheirType) {
  EXPECT_EQ(partsOf("r*16@0:8^{_NSZone=}16N^@24^^?32Vv"),
            (Parts{"r*", "@", ":", "^{_NSZone=}", "N^@", "^^?", "Vv"}));
  EXPECT_EQ(partsOf("v@:b12q"), (Parts{"v", "@", ":", "b12", "q"}));
}

TEST(MethodTypes, objectsMayNameTheirClassAndBlocksTheirSignature) {
  EXPECT_EQ(partsOf("@\"NSString\"24@0:8@\"NSArray<A>\"16@?<v@?B>24@?32#40"),
            (Parts{"@\"NSString\"", "@", ":", "@\"NSArray<A>\"", "@?<v@?B>", "@?", "#"}));
}

TEST(MethodTypes, ofNothingAreNil) {
  EXPECT_EQ(method_copyReturnType(nullptr), nullptr);
  EXPECT_EQ(method_copyArgumentType(nullptr, 0), nullptr);
  EXPECT_EQ(method_getNumberOfArguments(nullptr), 0u);
  EXPECT_EQ(partsOf(nullptr), Parts{"nil"});
}

TEST(MethodTypes, cutShortAreTakenAsTheyAre) {
  EXPECT_EQ(partsOf("v@:{s=i"), (Parts{"v", "@", ":", "{s=i"}));
  EXPECT_EQ(partsOf("v@:@\"NS"), (Parts{"v", "@", ":", "@\"NS"}));
  EXPECT_EQ(partsOf("v@:^"), (Parts{"v", "@", ":", "^"}));
}

}  // namespace
