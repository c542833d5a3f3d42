// Classes that are registered together: all of them, or none.
#include <gtest/gtest.h>

#include "objc/ClassGroup.h"

namespace {

struct Base : objc::Implementation<Base> {
  long number;
  static objc::Registration registerClass() {
    return objc::ClassBuilder<Base>("GroupBase", "NSObject")
        .property<"number", &Base::number>()
        .finish();
  }
};
struct Derived : objc::Implementation<Derived> {
  static objc::Registration registerClass() {
    return objc::ClassBuilder<Derived>("GroupDerived", Base::cls()).finish();
  }
};
struct Last : objc::Implementation<Last> {
  static objc::Registration registerClass() {
    return objc::ClassBuilder<Last>("GroupLast", "NSObject").finish();
  }
};
// Its superclass comes too late.
struct Early : objc::Implementation<Early> {
  static objc::Registration registerClass() {
    return objc::ClassBuilder<Early>("GroupEarly", "GroupLast").finish();
  }
};

void occupy(const char* name) {
  objc_registerClassPair(objc_allocateClassPair(objc_getClass("NSObject"), name, 0));
}

TEST(ClassGroups, AreThereWhenNothingIsInTheWay) {
  EXPECT_FALSE((objc::registerTogether<Base, Derived, Last>()));
  EXPECT_EQ(objc_getClass("GroupBase"), Base::cls());
  EXPECT_EQ(class_getSuperclass(Derived::cls()), Base::cls());
  EXPECT_EQ(objc_getClass("GroupLast"), Last::cls());
}

TEST(ClassGroups, LeaveNothingWhenTheLastIsRefused) {
  occupy("GroupLast");
  const objc::Refusal refused = objc::registerTogether<Base, Derived, Last>();
  ASSERT_TRUE(refused);
  EXPECT_STREQ(refused.className, "GroupLast");
  EXPECT_STREQ(refused.reason, "the name is taken");
  EXPECT_EQ(objc_getClass("GroupBase"), nullptr);
  EXPECT_EQ(objc_getClass("GroupDerived"), nullptr);
  EXPECT_EQ(Base::cls(), nullptr);
  EXPECT_EQ(Derived::cls(), nullptr);
  EXPECT_EQ(Last::cls(), nullptr);
}

TEST(ClassGroups, LeaveNothingWhenTheFirstIsRefused) {
  occupy("GroupBase");
  const objc::Refusal refused = objc::registerTogether<Base, Derived, Last>();
  EXPECT_STREQ(refused.className, "GroupBase");
  EXPECT_EQ(objc_getClass("GroupDerived"), nullptr);
  EXPECT_EQ(objc_getClass("GroupLast"), nullptr);
}

TEST(ClassGroups, AreRefusedWithoutASuperclass) {
  const objc::Refusal refused = objc::registerTogether<Base, Early, Last>();
  EXPECT_STREQ(refused.className, "GroupEarly");
  EXPECT_STREQ(refused.reason, "its superclass does not exist");
  EXPECT_EQ(objc_getClass("GroupBase"), nullptr);
}

TEST(ClassGroups, CanBeRegisteredWhenTheWayIsFreeAgain) {
  EXPECT_TRUE((objc::registerTogether<Base, Early>()));
  EXPECT_FALSE((objc::registerTogether<Base, Last, Early>()));
  const auto base = Base::make();
  objc::send<void, "setNumber:">(base, 17L);
  EXPECT_EQ(Base::of(base).number, 17);
}

}  // namespace
