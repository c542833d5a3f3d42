// Type encodings made from C++ types.
#include <gtest/gtest.h>

#include "objc/Block.h"
#include "objc/Encoding.h"
#include "tests/bridge/SampleTypes.h"

namespace {

using objc::encoding;
using objc::methodEncoding;

struct Button : objc::Object {};

TEST(Encodings, NumbersKeepWidthAndSign) {
  EXPECT_STREQ(encoding<bool>.c_str(), "B");
  EXPECT_STREQ(encoding<signed char>.c_str(), "c");
  EXPECT_STREQ(encoding<unsigned char>.c_str(), "C");
  EXPECT_STREQ(encoding<short>.c_str(), "s");
  EXPECT_STREQ(encoding<unsigned short>.c_str(), "S");
  EXPECT_STREQ(encoding<int>.c_str(), "i");
  EXPECT_STREQ(encoding<unsigned int>.c_str(), "I");
  EXPECT_STREQ(encoding<long>.c_str(), "q");
  EXPECT_STREQ(encoding<unsigned long>.c_str(), "Q");
  EXPECT_STREQ(encoding<long long>.c_str(), "q");
  EXPECT_STREQ(encoding<unsigned long long>.c_str(), "Q");
  EXPECT_STREQ(encoding<float>.c_str(), "f");
  EXPECT_STREQ(encoding<double>.c_str(), "d");
  EXPECT_STREQ(encoding<char16_t>.c_str(), "S");  // unichar
}

TEST(Encodings, EnumerationsAreTheirUnderlyingType) {
  EXPECT_STREQ(encoding<bridge::Direction>.c_str(), "q");
  EXPECT_STREQ(encoding<bridge::SmallFlags>.c_str(), "C");
}

TEST(Encodings, ObjectsOfAnyViewAreObjects) {
  EXPECT_STREQ(encoding<id>.c_str(), "@");
  EXPECT_STREQ(encoding<objc::Object>.c_str(), "@");
  EXPECT_STREQ(encoding<Button>.c_str(), "@");
  EXPECT_STREQ(encoding<Class>.c_str(), "#");
  EXPECT_STREQ(encoding<SEL>.c_str(), ":");
}

TEST(Encodings, BlocksOfAnySignatureAreBlocks) {
  EXPECT_STREQ(encoding<objc::Block<void()>>.c_str(), "@?");
  EXPECT_STREQ((encoding<objc::Block<bool(Button, long)>>.c_str()), "@?");
}

TEST(Encodings, PointersNameWhatTheyPointAt) {
  EXPECT_STREQ(encoding<void*>.c_str(), "^v");
  EXPECT_STREQ(encoding<const void*>.c_str(), "r^v");
  EXPECT_STREQ(encoding<char*>.c_str(), "*");
  EXPECT_STREQ(encoding<const char*>.c_str(), "r*");
  EXPECT_STREQ(encoding<id*>.c_str(), "^@");
  EXPECT_STREQ(encoding<Button*>.c_str(), "^@");
  EXPECT_STREQ(encoding<bool*>.c_str(), "^B");
  EXPECT_STREQ(encoding<double**>.c_str(), "^^d");
  EXPECT_STREQ(encoding<const long*>.c_str(), "r^q");
  EXPECT_STREQ(encoding<bridge::Doubles16*>.c_str(), "^{Doubles16=dd}");
  EXPECT_STREQ(encoding<void (*)(void*)>.c_str(), "^?");
}

TEST(Encodings, StructuresSpeakForThemselves) {
  EXPECT_STREQ(encoding<bridge::Doubles32>.c_str(), "{Doubles32={Doubles16=dd}{Doubles16=dd}}");
  EXPECT_STREQ(encoding<bridge::Mixed24>.c_str(), "{Mixed24=qdiB}");
}

TEST(Encodings, MethodsPutReceiverAndSelectorBetweenResultAndArguments) {
  EXPECT_STREQ(methodEncoding<void>.c_str(), "v@:");
  EXPECT_STREQ(methodEncoding<long>.c_str(), "q@:");
  EXPECT_STREQ((methodEncoding<void, long>.c_str()), "v@:q");
  EXPECT_STREQ((methodEncoding<id, Button>.c_str()), "@@:@");
  EXPECT_STREQ(methodEncoding<Button>.c_str(), "@@:");
  EXPECT_STREQ((methodEncoding<void, bool>.c_str()), "v@:B");
  EXPECT_STREQ((methodEncoding<void, int>.c_str()), "v@:i");
  EXPECT_STREQ((methodEncoding<void, objc::Object>.c_str()), "v@:@");
  EXPECT_STREQ((methodEncoding<bridge::Doubles32, bridge::Doubles32, SEL, Class>.c_str()),
               "{Doubles32={Doubles16=dd}{Doubles16=dd}}@:{Doubles32={Doubles16=dd}"
               "{Doubles16=dd}}:#");
  EXPECT_STREQ((methodEncoding<bool, objc::Block<void(bool)>, id*, const char*, double>.c_str()),
               "B@:@?^@r*d");
}

TEST(Encodings, AreReadyAtCompileTime) {
  constexpr objc::FixedString text = methodEncoding<void, long>;
  static_assert(text.size() == 4 && text.text[0] == 'v' && text.text[3] == 'q');
  static_assert(text.text[text.size()] == '\0');
}

}  // namespace
