#include <cstring>

#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSValueTest = FoundationTest;

struct Rectangle {
  double x, y, width, height;
};
constexpr const char* rectangleType = "{CGRect={CGPoint=dd}{CGSize=dd}}";

Object valueOf(const void* bytes, const char* type) {
  return send<Object, "valueWithBytes:objCType:">(cls("NSValue"), bytes, type);
}

TEST_F(NSValueTest, keepsStructures) {
  const Rectangle rectangle{0, 20, 320, 44.5};
  const Object value = valueOf(&rectangle, rectangleType);
  Rectangle read = {};
  send<void, "getValue:">(value, static_cast<void*>(&read));
  EXPECT_EQ(std::memcmp(&read, &rectangle, sizeof read), 0);
  EXPECT_STREQ((send<const char*, "objCType">(value)), rectangleType);
  EXPECT_EQ(description(value), "{{0, 20}, {320, 44.5}}");
  EXPECT_EQ(notation(value), "{{0, 20}, {320, 44.5}}");
}

TEST_F(NSValueTest, equalsByTypeAndBytes) {
  const Rectangle one{1, 2, 3, 4};
  const Rectangle other{1, 2, 3, 5};
  EXPECT_TRUE((send<bool, "isEqual:">(valueOf(&one, rectangleType), valueOf(&one, rectangleType))));
  EXPECT_FALSE(
      (send<bool, "isEqual:">(valueOf(&one, rectangleType), valueOf(&other, rectangleType))));
  EXPECT_FALSE((send<bool, "isEqual:">(valueOf(&one, "{A=dddd}"), valueOf(&one, rectangleType))));
}

TEST_F(NSValueTest, keepsPointersAndDoesNotRetainObjects) {
  const Object object = string("kept");
  const Object value = send<Object, "valueWithNonretainedObject:">(cls("NSValue"), object);
  EXPECT_EQ((send<Object, "nonretainedObjectValue">(value)), object);
  int place = 0;
  const Object pointer =
      send<Object, "valueWithPointer:">(cls("NSValue"), static_cast<const void*>(&place));
  EXPECT_EQ((send<void*, "pointerValue">(pointer)), &place);
}

using NSValueDeathTest = FoundationTest;

TEST_F(NSValueDeathTest, stopsForUnknownTypes) {
  EXPECT_DEATH(valueOf("", "?"), "unsupported type encoding '\\?'");
}

}  // namespace
}  // namespace sim
