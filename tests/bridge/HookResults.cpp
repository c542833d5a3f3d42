// Hooks hand results and arguments of every type on to the previous implementation and back.
#include "objc/Hook.h"
#include "tests/bridge/Giver.h"

namespace {

using bridge::Giver;
using bridge::sample;
using objc::Original;

template <class T>
struct GiverView : objc::Object {
  using Object::Object;
};

template <class T>
struct HookResults : testing::Test {
  static inline int calls;

  static T value(Original<T(GiverView<T>)> original, GiverView<T> self) {
    ++calls;
    return original(self);
  }
  static T last(Original<T(GiverView<T>, long, double, long, double, long, double, T)> original,
                GiverView<T> self, long a, double b, long c, double d, long e, double f, T value) {
    ++calls;
    EXPECT_TRUE(value == sample<T>());
    return original(self, a, b, c, d, e, f, value);
  }

  static constexpr auto lastName = objc::FixedString("one:two:three:four:five:six:last:");

  void SetUp() override {
    if (Giver<T>::cls() != nullptr) GTEST_SKIP() << "hooks stay: run each test in its own process";
    Class made = objc::ClassBuilder<Giver<T>>("Giver", "NSObject")
                     .template method<"value", &Giver<T>::value>()
                     .template method<lastName, &Giver<T>::last>()
                     .finish();
    if (made == nullptr) GTEST_SKIP() << "class names stay: run each test in its own process";
    calls = 0;
  }
};
TYPED_TEST_SUITE(HookResults, bridge::SampleTypes);

TYPED_TEST(HookResults, ComeBackWhole) {
  EXPECT_TRUE((objc::hook<"Giver", "value", &TestFixture::value>()));
  auto giver = Giver<TypeParam>::make();
  EXPECT_TRUE((objc::send<TypeParam, "value">(giver)) == sample<TypeParam>());
  EXPECT_EQ(this->calls, 1);
}

TYPED_TEST(HookResults, KeepArguments) {
  EXPECT_TRUE((objc::hook<"Giver", TestFixture::lastName, &TestFixture::last>()));
  auto giver = Giver<TypeParam>::make();
  const TypeParam found = objc::send<TypeParam, TestFixture::lastName>(giver, 1L, 2.0, 3L, 4.0, 5L,
                                                                       6.0, sample<TypeParam>());
  EXPECT_TRUE(found == sample<TypeParam>());
  EXPECT_EQ(this->calls, 1);
}

}  // namespace
