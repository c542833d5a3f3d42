#include "simulator/runtime/ClassChanges.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;
using sim::runtime::ClassChange;

namespace {

struct Seen {
  ClassChange::Kind kind;
  Class cls;
  std::string name;
  std::string types;
  bool operator==(const Seen&) const = default;
};
std::vector<Seen> seen;

void observe(const ClassChange& change) {
  // Not under the runtime's lock, or this would never return.
  objc_getClass(class_getName(change.cls));
  seen.push_back({change.kind, change.cls, change.name, change.types});
}

void nothing(id, SEL) {}

class ClassChanges : public testing::Test {
 protected:
  void SetUp() override {
    seen.clear();
    sim::runtime::observeClassChanges(&observe);
  }
  void TearDown() override { sim::runtime::observeClassChanges(nullptr); }
};

TEST_F(ClassChanges, ofARegisteredClassAreTold) {
  Class cls = makeClass("Changing");
  const objc_property_attribute_t integer{"T", "q"};
  class_addMethod(cls, sel("typed"), asImplementation(&nothing), "v@:");
  class_addMethod(cls, sel("untyped"), asImplementation(&nothing), nullptr);
  class_addProperty(cls, "value", &integer, 1);
  MSHookMessageEx(cls, sel("typed"), asImplementation(&nothing), nullptr);
  using Kind = ClassChange::Kind;
  EXPECT_EQ(seen, (std::vector<Seen>{{Kind::classRegistered, cls, class_getName(cls), ""},
                                     {Kind::methodAdded, cls, "typed", "v@:"},
                                     {Kind::methodAdded, cls, "untyped", ""},
                                     {Kind::propertyAdded, cls, "value", "Tq"},
                                     {Kind::methodHooked, cls, "typed", ""}}));
}

TEST_F(ClassChanges, beforeRegistrationAreNotTold) {
  Class cls = objc_allocateClassPair(rootClass(), "Unfinished", 0);
  addMethod(cls, "early", &nothing);
  EXPECT_TRUE(seen.empty());
  objc_disposeClassPair(cls);
}

TEST_F(ClassChanges, thatFailAreNotTold) {
  Class cls = makeClass("Changing");
  addMethod(cls, "once", &nothing);
  seen.clear();
  addMethod(cls, "once", &nothing);
  EXPECT_TRUE(seen.empty());
}

}  // namespace
