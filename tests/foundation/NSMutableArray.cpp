#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSMutableArrayTest = FoundationTest;

Object newArray() {
  return send<Object, "arrayWithArray:">(
      cls("NSMutableArray"), array({string("a"), string("b"), string("a"), string("c")}));
}
std::string lettersIn(Object list) {
  return text(send<Object, "componentsJoinedByString:">(list, string("")));
}

TEST_F(NSMutableArrayTest, addsAndInserts) {
  const Object list = send<Object, "array">(cls("NSMutableArray"));
  send<void, "addObject:">(list, string("b"));
  send<void, "insertObject:atIndex:">(list, string("a"), 0ul);
  send<void, "addObjectsFromArray:">(list, list);
  send<void, "setObject:atIndexedSubscript:">(list, string("z"), 4ul);
  send<void, "setObject:atIndexedSubscript:">(list, string("y"), 0ul);
  EXPECT_EQ(lettersIn(list), "ybabz");
}

TEST_F(NSMutableArrayTest, removes) {
  const Object list = newArray();
  send<void, "removeObject:">(list, string("a"));
  EXPECT_EQ(lettersIn(list), "bc");
  send<void, "removeObjectAtIndex:">(list, 0ul);
  EXPECT_EQ(lettersIn(list), "c");
  send<void, "removeLastObject">(list);
  send<void, "removeLastObject">(list);
  EXPECT_EQ((send<unsigned long, "count">(list)), 0u);
}

TEST_F(NSMutableArrayTest, removesAnElementThatOnlyItKeeps) {
  const Object list = send<Object, "array">(cls("NSMutableArray"));
  {
    const objc::AutoreleasePool pool;
    send<void, "addObject:">(list, string("only"));
    send<void, "addObject:">(list, string("only"));
  }
  send<void, "removeObject:">(list, send<Object, "firstObject">(list));
  EXPECT_EQ((send<unsigned long, "count">(list)), 0u);
}

TEST_F(NSMutableArrayTest, replacesAndExchanges) {
  const Object list = newArray();
  send<void, "replaceObjectAtIndex:withObject:">(list, 0ul, string("x"));
  send<void, "exchangeObjectAtIndex:withObjectAtIndex:">(list, 0ul, 3ul);
  EXPECT_EQ(lettersIn(list), "cbax");
  send<void, "sortUsingSelector:">(list, sel_registerName("compare:"));
  EXPECT_EQ(lettersIn(list), "abcx");
  send<void, "removeAllObjects">(list);
  EXPECT_EQ(lettersIn(list), "");
}

TEST_F(NSMutableArrayTest, copyDoesNotFollow) {
  const Object list = newArray();
  const auto copy = objc::adopt(send<Object, "copy">(list));
  const auto changing = objc::adopt(send<Object, "mutableCopy">(copy.get()));
  send<void, "removeAllObjects">(list);
  send<void, "removeLastObject">(changing.get());
  EXPECT_EQ(lettersIn(copy), "abac");
  EXPECT_EQ(lettersIn(changing), "aba");
  EXPECT_FALSE(isKindOf(copy, "NSMutableArray"));
}

using NSMutableArrayDeathTest = FoundationTest;

TEST_F(NSMutableArrayDeathTest, stopsForNil) {
  EXPECT_DEATH((send<void, "addObject:">(newArray(), nullptr)),
               "insertObject:atIndex:\\]: object cannot be nil");
}

TEST_F(NSMutableArrayDeathTest, stopsBehindTheEnd) {
  EXPECT_DEATH((send<void, "removeObjectAtIndex:">(newArray(), 4ul)),
               "index 4 beyond bounds \\[0 .. 3\\]");
  EXPECT_DEATH((send<void, "insertObject:atIndex:">(newArray(), string("x"), 5ul)),
               "index 5 beyond");
}

}  // namespace
}  // namespace sim
