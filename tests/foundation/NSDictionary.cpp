#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSDictionaryTest = FoundationTest;

Object make() {
  return dictionary({{string("one"), number(1L)}, {string("two"), number(2L)}});
}

TEST_F(NSDictionaryTest, findsValuesByEqualKeys) {
  EXPECT_EQ(description(send<Object, "objectForKey:">(make(), string("two"))), "2");
  EXPECT_EQ(description(send<Object, "objectForKeyedSubscript:">(make(), string("one"))), "1");
  EXPECT_FALSE((send<Object, "objectForKey:">(make(), string("three"))));
  EXPECT_FALSE((send<Object, "objectForKey:">(make(), nullptr)));
}

TEST_F(NSDictionaryTest, copiesItsKeys) {
  const Object key = send<Object, "stringWithString:">(cls("NSMutableString"), string("key"));
  const Object made = dictionary({{key, string("value")}});
  send<void, "appendString:">(key, string("!"));
  EXPECT_EQ(text(send<Object, "objectForKey:">(made, string("key"))), "value");
}

TEST_F(NSDictionaryTest, listsKeysAndValuesInOneOrder) {
  EXPECT_EQ(
      text(send<Object, "componentsJoinedByString:">(send<Object, "allKeys">(make()), string(","))),
      "one,two");
  EXPECT_EQ(text(send<Object, "componentsJoinedByString:">(send<Object, "allValues">(make()),
                                                           string(","))),
            "1,2");
}

TEST_F(NSDictionaryTest, isMadeInManyWays) {
  const id values[] = {number(1L).get(), number(2L).get(), number(3L).get()};
  const id keys[] = {string("one").get(), string("two").get(), string("one").get()};
  const Object made = send<Object, "dictionaryWithObjects:forKeys:count:">(
      cls("NSDictionary"), static_cast<const id*>(values), static_cast<const id*>(keys), 3ul);
  EXPECT_TRUE((send<bool, "isEqualToDictionary:">(made, make())));
  EXPECT_TRUE((send<bool, "isEqual:">(
      objc::sendVariadic<Object, "dictionaryWithObjectsAndKeys:">(
          cls("NSDictionary"), number(1L), string("one"), number(2L), string("two"), Object()),
      make())));
  EXPECT_TRUE(
      isKindOf(send<Object, "dictionaryWithDictionary:">(cls("NSMutableDictionary"), make()),
               "NSMutableDictionary"));
  EXPECT_EQ((send<unsigned long, "count">(send<Object, "dictionary">(cls("NSDictionary")))), 0u);
}

TEST_F(NSDictionaryTest, comparesEntries) {
  EXPECT_TRUE((send<bool, "isEqual:">(
      make(), dictionary({{string("two"), number(2L)}, {string("one"), number(1L)}}))));
  EXPECT_FALSE((send<bool, "isEqual:">(
      make(), dictionary({{string("two"), number(2L)}, {string("one"), number(2L)}}))));
  EXPECT_FALSE((send<bool, "isEqual:">(make(), dictionary({{string("one"), number(1L)}}))));
}

TEST_F(NSDictionaryTest, visitsItsEntries) {
  std::string seen;
  const auto visit = objc::block<void(Object, Object, bool*)>(
      [&seen](Object key, Object value, bool*) { seen += text(key) + description(value); });
  send<void, "enumerateKeysAndObjectsUsingBlock:">(make(), visit.get());
  EXPECT_EQ(seen, "one1two2");
}

TEST_F(NSDictionaryTest, isReadFromAFile) {
  const Object path = string("/var/mobile/numbers.plist");
  EXPECT_TRUE((send<bool, "writeToFile:atomically:">(make(), path, true)));
  const Object read = send<Object, "dictionaryWithContentsOfFile:">(cls("NSDictionary"), path);
  EXPECT_TRUE((send<bool, "isEqual:">(read, make())));
  EXPECT_FALSE((send<Object, "dictionaryWithContentsOfFile:">(cls("NSDictionary"), string("/no"))));
  EXPECT_FALSE((send<Object, "dictionaryWithContentsOfFile:">(cls("NSDictionary"), nullptr)));
  EXPECT_EQ((send<id, "initWithContentsOfFile:">(objc_alloc(cls("NSDictionary")), string("/no"))),
            nullptr);
}

using NSDictionaryDeathTest = FoundationTest;

TEST_F(NSDictionaryDeathTest, stopsForNil) {
  const id nothing[] = {nullptr};
  const id key[] = {string("k").get()};
  EXPECT_DEATH(
      (send<Object, "dictionaryWithObjects:forKeys:count:">(
          cls("NSDictionary"), static_cast<const id*>(nothing), static_cast<const id*>(key), 1ul)),
      "attempt to insert nil object from objects\\[0\\]");
}

}  // namespace
}  // namespace sim
