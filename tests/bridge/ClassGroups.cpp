// Classes that are registered together: all of them, or none.
#include <gtest/gtest.h>

#include "objc/ClassGroup.h"

namespace {

// Classes of its own for each test: what one registers stays for the others.
template <char test>
struct Group {
  template <std::size_t size>
  static constexpr auto named(const char (&name)[size]) {
    const char end[] = {test, 0};
    return objc::FixedString(name) + objc::FixedString(end);
  }
  static constexpr auto base = named("GroupBase");
  static constexpr auto derived = named("GroupDerived");
  static constexpr auto last = named("GroupLast");
  static constexpr auto early = named("GroupEarly");

  struct Base : objc::Implementation<Base> {
    long number;
    static objc::Registration registerClass() {
      return objc::ClassBuilder<Base>(base.c_str(), "NSObject")
          .template property<"number", &Base::number>()
          .finish();
    }
  };
  struct Derived : objc::Implementation<Derived> {
    static objc::Registration registerClass() {
      return objc::ClassBuilder<Derived>(derived.c_str(), Base::cls()).finish();
    }
  };
  struct Last : objc::Implementation<Last> {
    static objc::Registration registerClass() {
      return objc::ClassBuilder<Last>(last.c_str(), "NSObject").finish();
    }
  };
  // Its superclass comes too late.
  struct Early : objc::Implementation<Early> {
    static objc::Registration registerClass() {
      return objc::ClassBuilder<Early>(early.c_str(), last.c_str()).finish();
    }
  };
};

void occupy(const char* name) {
  objc_registerClassPair(objc_allocateClassPair(objc_getClass("NSObject"), name, 0));
}

TEST(ClassGroups, AreThereWhenNothingIsInTheWay) {
  using All = Group<'A'>;
  EXPECT_FALSE((objc::registerTogether<All::Base, All::Derived, All::Last>()));
  EXPECT_EQ(objc_getClass(All::base.c_str()), All::Base::cls());
  EXPECT_EQ(class_getSuperclass(All::Derived::cls()), All::Base::cls());
  EXPECT_EQ(objc_getClass(All::last.c_str()), All::Last::cls());
}

TEST(ClassGroups, LeaveNothingWhenTheLastIsRefused) {
  using All = Group<'B'>;
  occupy(All::last.c_str());
  const objc::Refusal refused = objc::registerTogether<All::Base, All::Derived, All::Last>();
  ASSERT_TRUE(refused);
  EXPECT_STREQ(refused.className, All::last.c_str());
  EXPECT_STREQ(refused.reason, "the name is taken");
  EXPECT_EQ(objc_getClass(All::base.c_str()), nullptr);
  EXPECT_EQ(objc_getClass(All::derived.c_str()), nullptr);
  EXPECT_EQ(All::Base::cls(), nullptr);
  EXPECT_EQ(All::Derived::cls(), nullptr);
  EXPECT_EQ(All::Last::cls(), nullptr);
}

TEST(ClassGroups, LeaveNothingWhenTheFirstIsRefused) {
  using All = Group<'C'>;
  occupy(All::base.c_str());
  const objc::Refusal refused = objc::registerTogether<All::Base, All::Derived, All::Last>();
  EXPECT_STREQ(refused.className, All::base.c_str());
  EXPECT_EQ(objc_getClass(All::derived.c_str()), nullptr);
  EXPECT_EQ(objc_getClass(All::last.c_str()), nullptr);
}

TEST(ClassGroups, AreRefusedWithoutASuperclass) {
  using All = Group<'D'>;
  const objc::Refusal refused = objc::registerTogether<All::Base, All::Early, All::Last>();
  EXPECT_STREQ(refused.className, All::early.c_str());
  EXPECT_STREQ(refused.reason, "its superclass does not exist");
  EXPECT_EQ(objc_getClass(All::base.c_str()), nullptr);
}

TEST(ClassGroups, CanBeRegisteredWhenTheWayIsFreeAgain) {
  using All = Group<'E'>;
  EXPECT_TRUE((objc::registerTogether<All::Base, All::Early>()));
  EXPECT_FALSE((objc::registerTogether<All::Base, All::Last, All::Early>()));
  const auto base = All::Base::make();
  objc::send<void, "setNumber:">(base, 17L);
  EXPECT_EQ(All::Base::of(base).number, 17);
}

}  // namespace
