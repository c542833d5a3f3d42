#include <gtest/gtest.h>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

TEST(UnrecognizedSelectorsDeathTest, toAnInstance) {
  id object = make(makeClass("Deaf"));
  EXPECT_DEATH(send(object, "unheardOf:", 1),
               "-\\[Deaf[0-9]* unheardOf:\\]: unrecognized selector sent to instance 0x");
  objc_release(object);
}

TEST(UnrecognizedSelectorsDeathTest, toAClass) {
  Class cls = makeClass("Deaf");
  EXPECT_DEATH(send(cls, "unheardOf"),
               "\\+\\[Deaf[0-9]* unheardOf\\]: unrecognized selector sent to class 0x");
}

TEST(UnrecognizedSelectorsDeathTest, toSuper) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(
      derived, "onlyBelow", +[](id, SEL) {});
  id object = make(derived);
  objc_super toSuper{object, derived};
  const auto sender = reinterpret_cast<void (*)(objc_super*, SEL)>(&objc_msgSendSuper2);
  EXPECT_DEATH(sender(&toSuper, sel("onlyBelow")), "-\\[Derived[0-9]* onlyBelow\\]: unrecognized");
  objc_release(object);
}

TEST(UnrecognizedSelectorsDeathTest, aboveTheRoot) {
  id object = make(rootClass());
  objc_super toSuper{object, rootClass()};
  const auto sender = reinterpret_cast<void (*)(objc_super*, SEL)>(&objc_msgSendSuper2);
  EXPECT_DEATH(sender(&toSuper, sel("init")), "-\\[NSObject init\\]: unrecognized");
  objc_release(object);
}

#if defined(__x86_64__)
TEST(UnrecognizedSelectorsDeathTest, withAStructureResult) {
  struct TooLarge {
    double numbers[6];
  };
  id object = make(makeClass("Deaf"));
  const auto sender = reinterpret_cast<TooLarge (*)(id, SEL)>(&objc_msgSend_stret);
  EXPECT_DEATH((void)sender(object, sel("large")), "-\\[Deaf[0-9]* large\\]: unrecognized");
  objc_release(object);
}
#endif

TEST(UnrecognizedSelectorsDeathTest, throughAnImplementationThatIsNotThere) {
  Class cls = makeClass("Deaf");
  id object = make(cls);
  const IMP missing = class_getMethodImplementation(cls, sel("unheardOf"));
  ASSERT_NE(missing, nullptr);
  EXPECT_DEATH(reinterpret_cast<void (*)(id, SEL)>(missing)(object, sel("unheardOf")),
               "-\\[Deaf[0-9]* unheardOf\\]: unrecognized");
  EXPECT_EQ(class_getMethodImplementation(nullptr, sel("unheardOf")), nullptr);
  objc_release(object);
}

TEST(UnrecognizedSelectorsDeathTest, asTheObjectSaysItself) {
  id object = make(makeClass("Deaf"));
  EXPECT_DEATH(send(object, "doesNotRecognizeSelector:", sel("abstractMethod")),
               "-\\[Deaf[0-9]* abstractMethod\\]: unrecognized");
  objc_release(object);
}

}  // namespace
