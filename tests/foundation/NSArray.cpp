#include "simulator/foundation/NSRange.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSArrayTest = FoundationTest;

Object letters() {
  return array({string("a"), string("b"), string("c")});
}
std::string joined(Object list) {
  return text(send<Object, "componentsJoinedByString:">(list, string("")));
}

TEST_F(NSArrayTest, givesItsElements) {
  const Object list = letters();
  EXPECT_EQ((send<unsigned long, "count">(list)), 3u);
  EXPECT_EQ(text(send<Object, "objectAtIndex:">(list, 1ul)), "b");
  EXPECT_EQ(text(send<Object, "objectAtIndexedSubscript:">(list, 2ul)), "c");
  EXPECT_EQ(text(send<Object, "firstObject">(list)), "a");
  EXPECT_EQ(text(send<Object, "lastObject">(list)), "c");
  const Object empty = send<Object, "array">(cls("NSArray"));
  EXPECT_FALSE((send<Object, "firstObject">(empty)));
  EXPECT_FALSE((send<Object, "lastObject">(empty)));
}

TEST_F(NSArrayTest, findsEqualElements) {
  const Object list = letters();
  EXPECT_TRUE((send<bool, "containsObject:">(list, string("c"))));
  EXPECT_EQ((send<unsigned long, "indexOfObject:">(list, string("b"))), 1u);
  EXPECT_EQ((send<unsigned long, "indexOfObject:">(list, string("x"))), NSNotFound);
  EXPECT_EQ((send<unsigned long, "indexOfObjectIdenticalTo:">(list, string("b"))), NSNotFound);
  EXPECT_FALSE((send<bool, "containsObject:">(list, nullptr)));
}

TEST_F(NSArrayTest, isMadeInManyWays) {
  const id objects[] = {string("x").get(), string("y").get()};
  EXPECT_EQ(joined(send<Object, "arrayWithObjects:count:">(cls("NSArray"),
                                                           static_cast<const id*>(objects), 2ul)),
            "xy");
  EXPECT_EQ(joined(objc::sendVariadic<Object, "arrayWithObjects:">(cls("NSArray"), string("x"),
                                                                   string("y"), Object())),
            "xy");
  EXPECT_EQ(joined(send<Object, "arrayByAddingObject:">(letters(), string("d"))), "abcd");
  EXPECT_EQ(joined(send<Object, "arrayByAddingObjectsFromArray:">(letters(), letters())), "abcabc");
  EXPECT_EQ(joined(send<Object, "subarrayWithRange:">(letters(), NSRange{1, 2})), "bc");
  EXPECT_TRUE(isKindOf(send<Object, "arrayWithArray:">(cls("NSMutableArray"), letters()),
                       "NSMutableArray"));
}

TEST_F(NSArrayTest, visitsItsElementsUntilStopped) {
  std::string seen;
  const auto visit = objc::block<void(Object, unsigned long, bool*)>(
      [&seen](Object element, unsigned long index, bool* stop) {
        seen += text(element) + std::to_string(index);
        *stop = index == 1;
      });
  send<void, "enumerateObjectsUsingBlock:">(letters(), visit.get());
  EXPECT_EQ(seen, "a0b1");
}

TEST_F(NSArrayTest, sorts) {
  const Object list = array({string("b"), string("c"), string("a")});
  EXPECT_EQ(joined(send<Object, "sortedArrayUsingSelector:">(list, sel_registerName("compare:"))),
            "abc");
  const auto backwards = objc::block<long(Object, Object)>(
      [](Object left, Object right) { return send<long, "compare:">(right, left); });
  EXPECT_EQ(joined(send<Object, "sortedArrayUsingComparator:">(list, backwards.get())), "cba");
}

TEST_F(NSArrayTest, equalsElementByElement) {
  EXPECT_TRUE((send<bool, "isEqual:">(letters(), letters())));
  EXPECT_TRUE((send<bool, "isEqualToArray:">(letters(), letters())));
  EXPECT_FALSE((send<bool, "isEqual:">(letters(), array({string("a")}))));
  EXPECT_EQ((send<unsigned long, "hash">(letters())), (send<unsigned long, "hash">(letters())));
}

TEST_F(NSArrayTest, isReadFromAFile) {
  const Object path = string("/var/mobile/list.plist");
  EXPECT_TRUE((send<bool, "writeToFile:atomically:">(letters(), path, true)));
  EXPECT_EQ(joined(send<Object, "arrayWithContentsOfFile:">(cls("NSArray"), path)), "abc");
  EXPECT_FALSE((send<Object, "dictionaryWithContentsOfFile:">(cls("NSDictionary"), path)));
}

using NSArrayDeathTest = FoundationTest;

TEST_F(NSArrayDeathTest, stopsBehindTheEnd) {
  EXPECT_DEATH((send<Object, "objectAtIndex:">(letters(), 3ul)),
               "NSRangeException.*objectAtIndex:\\]: index 3 beyond bounds \\[0 .. 2\\]");
  EXPECT_DEATH((send<Object, "objectAtIndex:">(array({}), 0ul)),
               "index 0 beyond bounds for empty array");
}

TEST_F(NSArrayDeathTest, stopsForNil) {
  EXPECT_DEATH((send<Object, "arrayByAddingObject:">(letters(), nullptr)),
               "attempt to insert nil object from objects\\[3\\]");
}

}  // namespace
}  // namespace sim
