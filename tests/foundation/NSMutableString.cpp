#include "simulator/foundation/NSRange.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSMutableStringTest = FoundationTest;

Object makeString(const char* content) {
  return send<Object, "stringWithUTF8String:">(cls("NSMutableString"), content);
}

TEST_F(NSMutableStringTest, changesInPlace) {
  const Object made = makeString("b");
  send<void, "appendString:">(made, made);
  send<void, "insertString:atIndex:">(made, string("a"), 0ul);
  send<void, "appendString:">(made, string("cd"));
  send<void, "deleteCharactersInRange:">(made, NSRange{1, 1});
  EXPECT_EQ(text(made), "abcd");
  send<void, "setString:">(made, string("new"));
  EXPECT_EQ(text(made), "new");
}

TEST_F(NSMutableStringTest, isMadeEmpty) {
  EXPECT_EQ(text(send<Object, "string">(cls("NSMutableString"))), "");
  EXPECT_TRUE(isKindOf(send<Object, "string">(cls("NSMutableString")), "NSMutableString"));
  EXPECT_FALSE(isKindOf(send<Object, "string">(cls("NSString")), "NSMutableString"));
}

TEST_F(NSMutableStringTest, copyDoesNotFollow) {
  const Object made = makeString("a");
  const auto copy = objc::adopt(send<Object, "copy">(made));
  send<void, "appendString:">(made, string("b"));
  EXPECT_EQ(text(copy), "a");
  EXPECT_FALSE(isKindOf(copy, "NSMutableString"));
}

using NSMutableStringDeathTest = FoundationTest;

TEST_F(NSMutableStringDeathTest, stopsForNil) {
  EXPECT_DEATH((send<void, "appendString:">(makeString("a"), nullptr)),
               "-\\[NSMutableString appendString:\\]: nil argument");
}

}  // namespace
}  // namespace sim
