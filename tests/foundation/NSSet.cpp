#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSSetTest = FoundationTest;

Object make(const std::vector<Object>& members, const char* className = "NSSet") {
  return send<Object, "setWithArray:">(cls(className), array(members));
}

TEST_F(NSSetTest, holdsEqualMembersOnce) {
  const Object set = make({string("a"), string("b"), string("a")});
  EXPECT_EQ((send<unsigned long, "count">(set)), 2u);
  EXPECT_TRUE((send<bool, "containsObject:">(set, string("a"))));
  EXPECT_FALSE((send<bool, "containsObject:">(set, string("c"))));
  EXPECT_EQ(text(send<Object, "member:">(set, string("b"))), "b");
  EXPECT_EQ((send<unsigned long, "count">(send<Object, "allObjects">(set))), 2u);
  EXPECT_TRUE((send<Object, "anyObject">(set)));
  EXPECT_FALSE((send<Object, "anyObject">(make({}))));
}

TEST_F(NSSetTest, equalsWithoutOrder) {
  EXPECT_TRUE(
      (send<bool, "isEqual:">(make({string("a"), string("b")}), make({string("b"), string("a")}))));
  EXPECT_FALSE((send<bool, "isEqual:">(make({string("a")}), make({string("b")}))));
}

TEST_F(NSSetTest, changesWhenMutable) {
  const Object set = make({string("a")}, "NSMutableSet");
  send<void, "addObject:">(set, string("b"));
  send<void, "unionSet:">(set, make({string("c"), string("a")}));
  send<void, "removeObject:">(set, string("a"));
  EXPECT_TRUE((send<bool, "isEqualToSet:">(set, make({string("b"), string("c")}))));
  const auto copy = objc::adopt(send<Object, "copy">(set));
  send<void, "minusSet:">(set, set);
  EXPECT_EQ((send<unsigned long, "count">(set)), 0u);
  EXPECT_EQ((send<unsigned long, "count">(copy.get())), 2u);
}

using NSSetDeathTest = FoundationTest;

TEST_F(NSSetDeathTest, stopsForNil) {
  EXPECT_DEATH((send<void, "addObject:">(make({}, "NSMutableSet"), nullptr)),
               "addObject:\\]: object cannot be nil");
}

}  // namespace
}  // namespace sim
