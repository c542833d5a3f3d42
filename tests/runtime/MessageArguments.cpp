// Every argument reaches the method through the uncached first send and through the cache.
#include <gtest/gtest.h>

#include <cstdarg>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

long weighted(id, SEL, long a, long b, long c, long d, long e, long f, long g, long h) {
  return a + 2 * b + 3 * c + 4 * d + 5 * e + 6 * f + 7 * g + 8 * h;
}

double weightedDoubles(id, SEL, double a, double b, double c, double d, double e, double f,
                       double g, double h, double i, double j) {
  return a + 2 * b + 3 * c + 4 * d + 5 * e + 6 * f + 7 * g + 8 * h + 9 * i + 10 * j;
}

float sumFloats(id, SEL, float a, float b) {
  return a + b;
}

double mixed(id, SEL, long a, double b, char c, float d, long e, double f, short g, long h, long i,
             double j) {
  return static_cast<double>(a) + b * 2 + c * 3 + static_cast<double>(d) * 4 +
         static_cast<double>(e) * 5 + f * 6 + g * 7 + static_cast<double>(h) * 8 +
         static_cast<double>(i) * 9 + j * 10;
}

struct Rectangle {
  double x, y, width, height;
};
double area(id, SEL, Rectangle rectangle, long scale) {
  return rectangle.width * rectangle.height * static_cast<double>(scale);
}

int sumVariadic(id, SEL, int count, ...) {
  va_list arguments;
  va_start(arguments, count);
  double sum = 0;
  for (int i = 0; i < count; ++i) {
    sum += va_arg(arguments, double);
  }
  va_end(arguments);
  return static_cast<int>(sum);
}

id selfAndSelector(id self, SEL selector) {
  return selector == sel("selfAndSelector") ? self : nullptr;
}

class MessageArguments : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override { object_ = make(cls_); }
  void TearDown() override { objc_release(object_); }

  // Sends once before, so that the checked send finds the method in the cache.
  template <typename Result, typename... Arguments>
  Result sendMaybeCached(const char* name, Arguments... arguments) {
    if (GetParam()) {
      (void)send<Result>(object_, name, arguments...);
    }
    return send<Result>(object_, name, arguments...);
  }

  Class cls_ = makeClass("Arguments");
  id object_ = nullptr;
};

TEST_P(MessageArguments, selfAndSelectorArrive) {
  addMethod(cls_, "selfAndSelector", &selfAndSelector);
  EXPECT_EQ(sendMaybeCached<id>("selfAndSelector"), object_);
}

TEST_P(MessageArguments, moreIntegersThanRegisters) {
  addMethod(cls_, "weighted", &weighted);
  EXPECT_EQ(sendMaybeCached<long>("weighted", 1L, 2L, 3L, 4L, 5L, 6L, 7L, 8L), 204);
}

TEST_P(MessageArguments, moreDoublesThanRegisters) {
  addMethod(cls_, "weighted", &weightedDoubles);
  EXPECT_EQ(sendMaybeCached<double>("weighted", 1., 2., 3., 4., 5., 6., 7., 8., 9., 10.), 385.);
}

TEST_P(MessageArguments, floats) {
  addMethod(cls_, "sum", &sumFloats);
  EXPECT_EQ(sendMaybeCached<float>("sum", 1.5f, 2.25f), 3.75f);
}

TEST_P(MessageArguments, mixedIntegersAndFloats) {
  addMethod(cls_, "mixed", &mixed);
  const auto result =
      sendMaybeCached<double>("mixed", 1L, 2., char{3}, 4.f, 5L, 6., short{7}, 8L, 9L, 10.);
  EXPECT_EQ(result, 385.);
}

TEST_P(MessageArguments, structuresByValue) {
  addMethod(cls_, "area", &area);
  EXPECT_EQ(sendMaybeCached<double>("area", Rectangle{1, 2, 3, 4}, 10L), 120.);
}

TEST_P(MessageArguments, variadicMethods) {
  addMethod(cls_, "sum", &sumVariadic);
  const auto sender = reinterpret_cast<int (*)(id, SEL, int, ...)>(&objc_msgSend);
  if (GetParam()) {
    sender(object_, sel("sum"), 1, 1.);
  }
  EXPECT_EQ(sender(object_, sel("sum"), 9, 1., 2., 3., 4., 5., 6., 7., 8., 9.), 45);
}

INSTANTIATE_TEST_SUITE_P(Sends, MessageArguments, testing::Bool(),
                         [](const auto& test) { return test.param ? "cached" : "uncached"; });

}  // namespace
