// forwardingTargetForSelector:: an object may name another for what it does not answer.
#include <gtest/gtest.h>

#include <cstdarg>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

id target;
id forwardToTarget(id, SEL, SEL) {
  return target;
}
id forwardToItself(id self, SEL, SEL) {
  return self;
}

// Which receiver the method saw, and what came with the message.
id reached;
double sum(id self, SEL, int a, int b, int c, int d, int e, int f, double x, double y) {
  reached = self;
  return a + 10 * b + 100 * c + 1000 * d + 10000 * e + 100000 * f + x + y;
}
int sumOf(id, SEL, int count, ...) {
  std::va_list numbers;
  va_start(numbers, count);
  double total = 0;
  for (int i = 0; i < count; ++i) total += va_arg(numbers, double);
  va_end(numbers);
  return static_cast<int>(total);
}

struct Large {
  double numbers[6];
};
Large large(id self, SEL, double first) {
  reached = self;
  return {{first, 2, 3, 4, 5, 6}};
}
Large sendLarge(id object, const char* name, double first) {
#if defined(__x86_64__)
  const auto entry = &objc_msgSend_stret;
#else
  const auto entry = &objc_msgSend;
#endif
  return reinterpret_cast<Large (*)(id, SEL, double)>(entry)(object, sel(name), first);
}

class Forwarding : public testing::Test {
 protected:
  void SetUp() override {
    addMethod(front_, "forwardingTargetForSelector:", &forwardToTarget, "@@::");
    addMethod(back_, "sum", &sum);
    addMethod(back_, "sumOf:", &sumOf);
    addMethod(back_, "large:", &large);
    target = make(back_);
    reached = nullptr;
  }
  void TearDown() override {
    objc_release(object_);
    objc_release(target);
  }

  Class front_ = makeClass("Front");
  Class back_ = makeClass("Back");
  id object_ = make(front_);
};

TEST_F(Forwarding, passesAllArgumentsAndTheResult) {
  EXPECT_EQ((send<double>(object_, "sum", 1, 2, 3, 4, 5, 6, 0.25, 0.5)), 654321.75);
  EXPECT_EQ(reached, target);
}

TEST_F(Forwarding, passesVariadicArguments) {
  const auto sender = reinterpret_cast<int (*)(id, SEL, int, ...)>(&objc_msgSend);
  EXPECT_EQ(sender(object_, sel("sumOf:"), 3, 1.0, 2.0, 4.0), 7);
}

TEST_F(Forwarding, passesAStructureInMemory) {
  const Large result = sendLarge(object_, "large:", 1.5);
  EXPECT_EQ(result.numbers[0], 1.5);
  EXPECT_EQ(result.numbers[5], 6);
  EXPECT_EQ(reached, target);
}

TEST_F(Forwarding, happensForMessagesToSuper) {
  Class derived = makeClass("Derived", front_);
  id object = make(derived);
  objc_super toSuper{object, derived};
  using Sender = double (*)(objc_super*, SEL, int, int, int, int, int, int, double, double);
  EXPECT_EQ(reinterpret_cast<Sender>(&objc_msgSendSuper2)(&toSuper, sel("sum"), 1, 2, 3, 4, 5, 6,
                                                          0.25, 0.5),
            654321.75);
  EXPECT_EQ(reached, target);
  objc_release(object);
}

TEST_F(Forwarding, goesOnFromObjectToObject) {
  static const char next = 0;
  Class first = makeClass("First");
  addMethod(
      first, "forwardingTargetForSelector:",
      +[](id self, SEL, SEL) { return objc_getAssociatedObject(self, &next); }, "@@::");
  id object = make(first);
  objc_setAssociatedObject(object, &next, object_, OBJC_ASSOCIATION_ASSIGN);
  EXPECT_EQ((send<double>(object, "sum", 1, 2, 3, 4, 5, 6, 0.25, 0.5)), 654321.75);
  EXPECT_EQ(reached, target);
  objc_release(object);
}

TEST_F(Forwarding, mayGoToAClass) {
  addClassMethod(
      back_, "number", +[](id, SEL) { return 5; });
  id object = target;
  target = reinterpret_cast<id>(back_);
  EXPECT_EQ(send<int>(object_, "number"), 5);
  target = object;
}

TEST_F(Forwarding, ofAClassItselfAsksTheClass) {
  addClassMethod(front_, "forwardingTargetForSelector:", &forwardToTarget, "@@::");
  EXPECT_EQ((send<double>(front_, "sum", 1, 2, 3, 4, 5, 6, 0.25, 0.5)), 654321.75);
}

TEST_F(Forwarding, isNoAnswerToWhetherAnObjectResponds) {
  EXPECT_FALSE((send<bool>(object_, "respondsToSelector:", sel("sum"))));
  EXPECT_EQ(class_getInstanceMethod(front_, sel("sum")), nullptr);
}

TEST_F(Forwarding, endsWhenTheMethodIsAdded) {
  EXPECT_EQ((send<double>(object_, "sum", 1, 2, 3, 4, 5, 6, 0.25, 0.5)), 654321.75);
  addMethod(front_, "sum", &sum);
  EXPECT_EQ((send<double>(object_, "sum", 1, 2, 3, 4, 5, 6, 0.25, 0.5)), 654321.75);
  EXPECT_EQ(reached, object_);
}

TEST_F(Forwarding, isDoneByTheImplementationOfAMissingMethod) {
  using Sum = double (*)(id, SEL, int, int, int, int, int, int, double, double);
  const IMP missing = class_getMethodImplementation(front_, sel("sum"));
  EXPECT_EQ(reinterpret_cast<Sum>(missing)(object_, sel("sum"), 1, 2, 3, 4, 5, 6, 0.25, 0.5),
            654321.75);
#if defined(__x86_64__)
  const IMP missingLarge = class_getMethodImplementation_stret(front_, sel("large:"));
#else
  const IMP missingLarge = class_getMethodImplementation(front_, sel("large:"));
#endif
  const Large result =
      reinterpret_cast<Large (*)(id, SEL, double)>(missingLarge)(object_, sel("large:"), 1.5);
  EXPECT_EQ(result.numbers[0], 1.5);
  EXPECT_EQ(reached, target);
}

using ForwardingDeathTest = Forwarding;

TEST_F(ForwardingDeathTest, toSomebodyWhoDoesNotAnswerIsFatal) {
  EXPECT_DEATH(send(object_, "unheardOf"), "-\\[Back[0-9]* unheardOf\\]: unrecognized selector");
}

TEST_F(ForwardingDeathTest, toNobodyIsFatal) {
  id kept = target;
  target = nullptr;
  EXPECT_DEATH(send(object_, "sum"), "-\\[Front[0-9]* sum\\]: unrecognized selector");
  target = kept;
}

TEST_F(ForwardingDeathTest, toItselfIsFatal) {
  Class cls = makeClass("Circular");
  addMethod(cls, "forwardingTargetForSelector:", &forwardToItself, "@@::");
  id object = make(cls);
  EXPECT_DEATH(send(object, "sum"), "-\\[Circular[0-9]* sum\\]: unrecognized selector");
  objc_release(object);
}

}  // namespace
