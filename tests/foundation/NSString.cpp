#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSStringTest = FoundationTest;

TEST_F(NSStringTest, countsUtf16Units) {
  EXPECT_EQ((send<unsigned long, "length">(string("zÿ€😀"))), 5u);
  EXPECT_EQ((send<char16_t, "characterAtIndex:">(string("a😀"), 1ul)), 0xd83d);
  EXPECT_EQ((send<char16_t, "characterAtIndex:">(string("a😀"), 2ul)), 0xde00);
}

TEST_F(NSStringTest, givesItsUtf8Back) {
  const Object made = send<Object, "stringWithUTF8String:">(cls("NSString"), "żółw 😀");
  EXPECT_STREQ((send<const char*, "UTF8String">(made)), "żółw 😀");
  EXPECT_EQ(text(made), "żółw 😀");
}

TEST_F(NSStringTest, isNilForBytesThatAreNoUtf8) {
  for (const char* bytes :
       {"\xff", "\xc0\x80", "\xe0\x80\x80", "\xf0\x80\x80\x80", "\xf4\x90\x80\x80", "\xe2\x82",
        "\xed\xa0\x80", "\xf5\x80\x80\x80", "a\x80"})
    EXPECT_FALSE((send<Object, "stringWithUTF8String:">(cls("NSString"), bytes))) << bytes;
}

TEST_F(NSStringTest, equalsStringsWithTheSameTextOnly) {
  const Object one = string("same");
  const Object other = send<Object, "stringWithString:">(cls("NSMutableString"), one);
  EXPECT_TRUE((send<bool, "isEqualToString:">(one, other)));
  EXPECT_TRUE((send<bool, "isEqual:">(other, one)));
  EXPECT_EQ((send<unsigned long, "hash">(one)), (send<unsigned long, "hash">(other)));
  EXPECT_FALSE((send<bool, "isEqual:">(one, string("Same"))));
  EXPECT_FALSE((send<bool, "isEqual:">(one, number(1L))));
  EXPECT_FALSE((send<bool, "isEqualToString:">(one, nullptr)));
}

TEST_F(NSStringTest, comparesByUnits) {
  EXPECT_EQ((send<long, "compare:">(string("a"), string("b"))), -1);
  EXPECT_EQ((send<long, "compare:">(string("b"), string("a"))), 1);
  EXPECT_EQ((send<long, "compare:">(string("a"), string("a"))), 0);
  EXPECT_EQ((send<long, "caseInsensitiveCompare:">(string("Ä"), string("ä"))), 0);
}

TEST_F(NSStringTest, copyOfAnImmutableStringIsItself) {
  const Object made = string("text");
  const auto copy = objc::adopt(send<Object, "copy">(made));
  EXPECT_EQ(copy.get(), made);
}

TEST_F(NSStringTest, mutableCopyIsIndependent) {
  const Object made = string("text");
  const auto copy = objc::adopt(send<Object, "mutableCopy">(made));
  send<void, "appendString:">(copy.get(), string("!"));
  EXPECT_EQ(text(copy), "text!");
  EXPECT_EQ(text(made), "text");
}

TEST_F(NSStringTest, readsAndWritesFiles) {
  const Object path = string("/var/mobile/note.txt");
  EXPECT_TRUE((send<bool, "writeToFile:atomically:encoding:error:">(
      string("żółw"), path, true, 4ul, static_cast<Object*>(nullptr))));
  EXPECT_EQ(readFile("/var/mobile/note.txt"), "żółw");
  const auto read = objc::adopt(Object(send<id, "initWithContentsOfFile:encoding:error:">(
      objc_alloc(cls("NSString")), path, 4ul, static_cast<Object*>(nullptr))));
  EXPECT_EQ(text(read), "żółw");
}

using NSStringDeathTest = FoundationTest;

TEST_F(NSStringDeathTest, stopsBehindTheEnd) {
  EXPECT_DEATH((send<char16_t, "characterAtIndex:">(string("ab"), 2ul)),
               "NSRangeException.*characterAtIndex:.*out of bounds");
}

TEST_F(NSStringDeathTest, stopsForTextOfAnotherClass) {
  EXPECT_DEATH(text(number(1L)), "a string is needed");
}

}  // namespace
}  // namespace sim
