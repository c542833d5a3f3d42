// The inherited behaviour of overridden methods, with results of every type.
#include "tests/bridge/Giver.h"

namespace {

using bridge::Giver;
using bridge::sample;

// Each level reports that it ran and hands on what the level above it gave.
template <class T, int level>
struct Heir : objc::Implementation<Heir<T, level>> {
  static inline int runs;

  T value() {
    ++runs;
    return this->template super<T, "value">();
  }
  T last(long a, double b, long c, double d, long e, double f, T value) {
    ++runs;
    return this->template super<T, "one:two:three:four:five:six:last:">(a, b, c, d, e, f, value);
  }
  static T classValue(id cls) {
    ++runs;
    Class metaclass = object_getClass(reinterpret_cast<id>(Heir::cls()));
    return objc::sendSuper<T, "value">(cls, metaclass);
  }

  static Class registerClass(Class superclass) {
    const std::string name = bridge::classNameFor<T>("Heir") + char('0' + level);
    Class cls = objc::ClassBuilder<Heir>(name.c_str(), superclass)
                    .template method<"value", &Heir::value>()
                    .template method<"one:two:three:four:five:six:last:", &Heir::last>()
                    .finish();
    objc::addMethod<"value", classValue>(object_getClass(reinterpret_cast<id>(cls)));
    return cls;
  }
};

template <class T>
struct Super : testing::Test {
  static void SetUpTestSuite() {
    ASSERT_TRUE(Giver<T>::registerClass());
    ASSERT_TRUE((Heir<T, 1>::registerClass(Giver<T>::cls())));
    ASSERT_TRUE((Heir<T, 2>::registerClass(Heir<T, 1>::cls())));
  }
  void SetUp() override { Heir<T, 1>::runs = Heir<T, 2>::runs = 0; }
  void TearDown() override {
    const int first = Heir<T, 1>::runs, second = Heir<T, 2>::runs;
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
  }
  objc::Strong<objc::Object> heir = Heir<T, 2>::make();
};
TYPED_TEST_SUITE(Super, bridge::SampleTypes);

TYPED_TEST(Super, GivesTheInheritedResult) {
  const TypeParam found = objc::send<TypeParam, "value">(this->heir);
  EXPECT_TRUE(found == sample<TypeParam>());
}

TYPED_TEST(Super, PassesArgumentsOn) {
  const TypeParam found = objc::send<TypeParam, "one:two:three:four:five:six:last:">(
      this->heir, 1L, 2.0, 3L, 4.0, 5L, 6.0, sample<TypeParam>());
  EXPECT_TRUE(found == sample<TypeParam>());
}

TYPED_TEST(Super, WorksForClassMethods) {
  Class cls = Heir<TypeParam, 2>::cls();
  EXPECT_TRUE((objc::send<TypeParam, "value">(cls)) == sample<TypeParam>());
}

}  // namespace
