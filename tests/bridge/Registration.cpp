// Registration that cannot succeed leaves everything as it was.
#include <gtest/gtest.h>

#include <string>

#include "objc/Class.h"

namespace {

struct Orphan : objc::Implementation<Orphan> {
  long number;
  void run() {}
  static long answer() { return 1; }

  static objc::Registration registerClass(const char* name, const char* superclass) {
    return objc::ClassBuilder<Orphan>(name, superclass)
        .method<"run", &Orphan::run>()
        .classMethod<"answer", &Orphan::answer>()
        .property<"number", &Orphan::number>()
        .readonlyProperty<"fixed", &Orphan::number>()
        .finish();
  }
};

long added(objc::Object) {
  return 17;
}
long addedToClass() {
  return 18;
}
long getNumber(objc::Object) {
  return 19;
}
void setNumber(objc::Object, long) {}

TEST(Registration, BelowAnAbsentBaseGivesNil) {
  EXPECT_EQ(Orphan::registerClass("Orphan", "NoClassOfThatName"), nullptr);
  EXPECT_EQ(Orphan::cls(), nullptr);
  EXPECT_EQ(objc_getClass("Orphan"), nullptr);
  EXPECT_FALSE(Orphan::make());
  EXPECT_EQ(objc::ClassBuilder<Orphan>("Orphan", Class(nullptr)).finish(), nullptr);
}

TEST(Registration, UnderATakenNameGivesNil) {
  const Class before = objc_getClass("NSObject");
  EXPECT_EQ(Orphan::registerClass("NSObject", "NSObject"), nullptr);
  EXPECT_EQ(Orphan::cls(), nullptr);
  EXPECT_EQ(objc_getClass("NSObject"), before);
  EXPECT_FALSE(class_respondsToSelector(before, objc::selector<"run">()));
  EXPECT_EQ(class_getProperty(before, "number"), nullptr);
}

TEST(Registration, ThatIsRefusedSaysWhy) {
  const auto orphan = Orphan::registerClass("Orphan", "NoClassOfThatName").refusal();
  EXPECT_TRUE(orphan);
  EXPECT_STREQ(orphan.className, "Orphan");
  EXPECT_STREQ(orphan.reason, "its superclass does not exist");
  const auto taken = Orphan::registerClass("NSObject", "NSObject").refusal();
  EXPECT_STREQ(taken.className, "NSObject");
  EXPECT_STREQ(taken.reason, "the name is taken");
  EXPECT_FALSE(Orphan::registerClass("Free", "NSObject").refusal());
}

TEST(Registration, CanBeUndone) {
  const auto made = Orphan::registerClass("Undone", "NSObject");
  made.undo();
  EXPECT_EQ(Orphan::cls(), nullptr);
  EXPECT_EQ(objc_getClass("Undone"), nullptr);
  made.undo();
  EXPECT_TRUE(Orphan::registerClass("Undone", "NSObject"));
}

TEST(Registration, NamesTheStateAfterItsClass) {
  const Class cls = Orphan::registerClass("Named", "NSObject");
  EXPECT_NE(class_getInstanceVariable(cls, "_Named_state"), nullptr);
  EXPECT_EQ(class_getInstanceVariable(cls, "_state"), nullptr);
}

TEST(Registration, CutsTheNameOfTheStateOffWhereItIsTooLong) {
  const std::string name(300, 'N');
  const Class cls = Orphan::registerClass(name.c_str(), "NSObject");
  ASSERT_NE(cls, nullptr);
  const auto object = Orphan::make();
  Orphan::of(object).number = 17;
  EXPECT_EQ((objc::send<long, "number">(object)), 17);
}

TEST(Registration, OfMethodsOnAnAbsentClassFails) {
  EXPECT_FALSE((objc::addMethod<"added", added>(nullptr)));
  EXPECT_FALSE((objc::addClassMethod<"addedToClass", addedToClass>(nullptr)));
  objc::addAttachedProperty<"attached", getNumber, setNumber>(nullptr, "q");
}

struct Host : objc::Implementation<Host> {
  long own() { return 1; }
  static objc::Registration registerClass() {
    return objc::ClassBuilder<Host>("Host", "NSObject").method<"own", &Host::own>().finish();
  }
};

struct RegistrationOnHost : testing::Test {
  static void SetUpTestSuite() { ASSERT_TRUE(Host::registerClass()); }
};

TEST_F(RegistrationOnHost, AddsMethodsToClassesOfTheHost) {
  EXPECT_TRUE((objc::addMethod<"added", added>(Host::cls())));
  EXPECT_TRUE((objc::addClassMethod<"addedToClass", addedToClass>(Host::cls())));
  EXPECT_EQ((objc::send<long, "added">(Host::make().get())), 17);
  EXPECT_EQ((objc::send<long, "addedToClass">(Host::cls())), 18);
}

TEST_F(RegistrationOnHost, NeverReplacesAMethodOfTheClassItself) {
  EXPECT_FALSE((objc::addMethod<"own", added>(Host::cls())));
  EXPECT_EQ((objc::send<long, "own">(Host::make().get())), 1);
}

}  // namespace
