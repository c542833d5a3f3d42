// .cxx_destruct: every class destroys its own instance variables.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

const char key = 0;
std::vector<std::string> events;
id associatedThen;
id weakThen;

template <int number>
void destruct(id self, SEL) {
  events.push_back("destruct" + std::to_string(number));
  associatedThen = objc_getAssociatedObject(self, &key);
}

class CxxDestruct : public testing::Test {
 protected:
  void SetUp() override { events.clear(); }

  Class base_ = makeClass("Base");
  Class middle_ = makeClass("Middle", base_);
  Class leaf_ = makeClass("Leaf", middle_);
};

TEST_F(CxxDestruct, runsForEachClassThatHasOneSubclassesFirst) {
  addMethod(base_, ".cxx_destruct", &destruct<1>);
  addMethod(leaf_, ".cxx_destruct", &destruct<3>);
  objc_release(make(leaf_));
  EXPECT_EQ(events, (std::vector<std::string>{"destruct3", "destruct1"}));
}

TEST_F(CxxDestruct, runsOnceWhereItIsInherited) {
  addMethod(base_, ".cxx_destruct", &destruct<1>);
  id object = make(leaf_);
  EXPECT_TRUE(events.empty());
  objc_release(object);
  EXPECT_EQ(events, std::vector<std::string>{"destruct1"});
}

TEST_F(CxxDestruct, runsForAClassMadeAfterItsSuperclassHadOne) {
  addMethod(base_, ".cxx_destruct", &destruct<1>);
  objc_release(make(makeClass("Late", base_)));
  EXPECT_EQ(events, std::vector<std::string>{"destruct1"});
}

TEST_F(CxxDestruct, runsAfterDeallocAndBeforeAssociationsGo) {
  addMethod(base_, ".cxx_destruct", &destruct<1>);
  addMethod(
      base_, "dealloc", +[](id self, SEL) {
        events.emplace_back("dealloc");
        object_dispose(self);
      });
  id object = make(base_);
  id value = make(rootClass());
  objc_setAssociatedObject(object, &key, value, OBJC_ASSOCIATION_RETAIN);
  objc_release(object);
  EXPECT_EQ(events, (std::vector<std::string>{"dealloc", "destruct1"}));
  EXPECT_EQ(associatedThen, value);
  objc_release(value);
}

TEST_F(CxxDestruct, whatItAssociatesGoesToo) {
  addMethod(
      base_, ".cxx_destruct", +[](id self, SEL) {
        id value = make(rootClass());
        objc_initWeak(&weakThen, value);
        objc_setAssociatedObject(self, &key, value, OBJC_ASSOCIATION_RETAIN);
        objc_release(value);
      });
  objc_release(make(base_));
  EXPECT_EQ(weakThen, nullptr);
}

}  // namespace
