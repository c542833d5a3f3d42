#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSMutableDictionaryTest = FoundationTest;

Object newDictionary() {
  return send<Object, "dictionary">(cls("NSMutableDictionary"));
}
Object value(Object made, const char* key) {
  return send<Object, "objectForKey:">(made, string(key));
}

TEST_F(NSMutableDictionaryTest, setsAndRemoves) {
  const Object made = newDictionary();
  send<void, "setObject:forKey:">(made, number(1L), string("a"));
  send<void, "setObject:forKey:">(made, number(2L), string("a"));
  EXPECT_EQ(description(value(made, "a")), "2");
  EXPECT_EQ((send<unsigned long, "count">(made)), 1u);
  send<void, "removeObjectForKey:">(made, string("a"));
  send<void, "removeObjectForKey:">(made, string("a"));
  EXPECT_FALSE(value(made, "a"));
}

TEST_F(NSMutableDictionaryTest, removesByANilSubscript) {
  const Object made = newDictionary();
  send<void, "setObject:forKeyedSubscript:">(made, number(1L), string("a"));
  EXPECT_TRUE(value(made, "a"));
  send<void, "setObject:forKeyedSubscript:">(made, nullptr, string("a"));
  EXPECT_FALSE(value(made, "a"));
}

TEST_F(NSMutableDictionaryTest, removesByItsOwnKey) {
  const Object made = newDictionary();
  {
    const objc::AutoreleasePool pool;
    send<void, "setObject:forKey:">(made, number(1L), string("only"));
  }
  send<void, "removeObjectForKey:">(made,
                                    send<Object, "firstObject">(send<Object, "allKeys">(made)));
  EXPECT_EQ((send<unsigned long, "count">(made)), 0u);
}

TEST_F(NSMutableDictionaryTest, takesOverEntries) {
  const Object made = newDictionary();
  const Object source = dictionary({{string("a"), number(1L)}, {string("b"), number(2L)}});
  send<void, "setObject:forKey:">(made, number(0L), string("a"));
  send<void, "addEntriesFromDictionary:">(made, source);
  EXPECT_TRUE((send<bool, "isEqual:">(made, source)));
  send<void, "removeObjectsForKeys:">(made, array({string("a"), string("x")}));
  EXPECT_EQ((send<unsigned long, "count">(made)), 1u);
  send<void, "removeAllObjects">(made);
  EXPECT_EQ((send<unsigned long, "count">(made)), 0u);
}

TEST_F(NSMutableDictionaryTest, copyDoesNotFollow) {
  const Object made = newDictionary();
  send<void, "setObject:forKey:">(made, number(1L), string("a"));
  const auto copy = objc::adopt(send<Object, "copy">(made));
  send<void, "removeAllObjects">(made);
  EXPECT_EQ((send<unsigned long, "count">(copy.get())), 1u);
  EXPECT_FALSE(isKindOf(copy, "NSMutableDictionary"));
}

using NSMutableDictionaryDeathTest = FoundationTest;

TEST_F(NSMutableDictionaryDeathTest, stopsForNil) {
  EXPECT_DEATH((send<void, "setObject:forKey:">(newDictionary(), nullptr, string("k"))),
               "setObject:forKey:\\]: object cannot be nil \\(key: k\\)");
  EXPECT_DEATH((send<void, "setObject:forKey:">(newDictionary(), string("v"), nullptr)),
               "setObject:forKey:\\]: key cannot be nil");
  EXPECT_DEATH((send<void, "removeObjectForKey:">(newDictionary(), nullptr)), "key cannot be nil");
}

}  // namespace
}  // namespace sim
