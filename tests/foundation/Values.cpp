#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using ValuesTest = FoundationTest;

TEST_F(ValuesTest, areWrittenInTheJournalsNotation) {
  EXPECT_EQ(notation(Object()), "nil");
  EXPECT_EQ(notation(string("a \"b\"")), "\"a \\\"b\\\"\"");
  EXPECT_EQ(notation(number(true)), "YES");
  EXPECT_EQ(notation(number(false)), "NO");
  EXPECT_EQ(notation(number(61L)), "61");
  EXPECT_EQ(notation(number(0.1 + 0.2)), "0.30000000000000004");
  EXPECT_EQ(notation(send<Object, "numberWithFloat:">(cls("NSNumber"), 0.1f)), "0.1");
  EXPECT_EQ(notation(date(820533600)), "2027-01-01 22:00:00 +0000");
  EXPECT_EQ(notation(array({})), "<NSArray>");
}

TEST_F(ValuesTest, areDescribed) {
  EXPECT_EQ(description(Object()), "(null)");
  EXPECT_EQ(description(Object(reinterpret_cast<id>(cls("NSDate")))), "NSDate");
  const auto plain = objc::adopt(Object(objc_alloc_init(cls("NSObject"))));
  EXPECT_TRUE(description(plain).starts_with("<NSObject: 0x")) << description(plain);
  EXPECT_EQ(text(send<Object, "debugDescription">(plain.get())), description(plain));
  EXPECT_EQ(description(send<Object, "null">(cls("NSNull"))), "<null>");
}

TEST_F(ValuesTest, knowTheirKind) {
  EXPECT_TRUE(isKindOf(number(1L), "NSValue"));
  EXPECT_FALSE(isKindOf(number(1L), "NSString"));
  EXPECT_FALSE(isKindOf(Object(), "NSObject"));
  EXPECT_FALSE(isKindOf(number(1L), "NoSuchClass"));
}

TEST_F(ValuesTest, ofNilTextIsEmpty) {
  EXPECT_EQ(text(Object()), "");
}

TEST_F(ValuesTest, replaceBytesThatAreNoUtf8) {
  EXPECT_EQ(text(string("a\xff")), "a\xef\xbf\xbd");
}

using CollectionDescriptionTest = FoundationTest;

TEST_F(CollectionDescriptionTest, isTheOldPropertyListNotation) {
  EXPECT_EQ(description(array({})), "(\n)");
  EXPECT_EQ(description(array({string("plain"), string("two words"), number(-1L), number(5L)})),
            "(\n    plain,\n    \"two words\",\n    \"-1\",\n    5\n)");
  EXPECT_EQ(description(dictionary({})), "{\n}");
}

TEST_F(CollectionDescriptionTest, nestsAndSorts) {
  const Object made =
      dictionary({{string("b"), array({string("é\n\"")})}, {string("a"), number(1L)}});
  EXPECT_EQ(description(made),
            "{\n    a = 1;\n    b =     (\n        \"\\U00e9\\n\\\"\"\n    );\n}");
}

TEST_F(CollectionDescriptionTest, ofAListInAListIsIndentedTwice) {
  EXPECT_EQ(description(array({array({number(1L)})})), "(\n        (\n        1\n    )\n)");
}

TEST_F(CollectionDescriptionTest, ofASetIsAListInBraces) {
  const Object set = send<Object, "setWithObject:">(cls("NSSet"), string("a"));
  EXPECT_EQ(description(set), "{(\n    a\n)}");
}

}  // namespace
}  // namespace sim
