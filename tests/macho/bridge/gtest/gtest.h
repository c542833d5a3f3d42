// As much of GoogleTest as the bridge's tests use, in a form that phones' code can have: no virtual
// functions, no static tables of functions, no library behind it. So the same tests can be compiled
// into a slice. What ends the process (EXPECT_DEATH) is compiled, and not tried.
#pragma once

#include <cstring>

// Nothing here is virtual: what a fixture declares hides what is above it.
#pragma clang diagnostic ignored "-Wkeyword-macro"
#define override

namespace testing {

class Test {
 public:
  static void SetUpTestSuite() {}
  void SetUp() {}
  void TearDown() {}
};

template <class... T>
struct Types {};

// Notes a failure when it is made; what is streamed into it is for readers of the source.
struct Failure {
  Failure(const char* file, int line, bool isFatal);
  template <class T>
  const Failure& operator<<(const T&) const {
    return *this;
  }
};
struct Skipped {
  Skipped();
  template <class T>
  const Skipped& operator<<(const T&) const {
    return *this;
  }
};
// For `return`, which gives nothing whatever stands behind it.
struct Return {
  void operator&(const Failure&) const {}
  void operator&(const Skipped&) const {}
};

void addTest(void (*run)());
void beginTest();
bool goesOn();  // false after a fatal failure, and where the test is skipped

template <class Fixture>
void setUpSuite() {
  static bool isSetUp;
  if (!isSetUp) Fixture::SetUpTestSuite();
  isSetUp = true;
}

template <class Case>
void run() {
  beginTest();
  setUpSuite<typename Case::Fixture>();
  Case test;
  if (goesOn()) test.SetUp();
  if (goesOn()) test.TestBody();
  test.TearDown();
}

template <class Case>
bool added() {
  addTest(&run<Case>);
  return true;
}
template <template <class> class Case, class... T>
bool added(Types<T...>) {
  (addTest(&run<Case<T>>), ...);
  return true;
}

template <class A, class B>
bool equal(const A& one, const B& other) {
  return one == other;
}
inline bool sameText(const char* one, const char* other) {
  return one == other || (one != nullptr && other != nullptr && std::strcmp(one, other) == 0);
}

}  // namespace testing

#define SLICE_CHECK(holds)      \
  if (static_cast<bool>(holds)) \
    ;                           \
  else                          \
    testing::Failure(__FILE__, __LINE__, false)
#define SLICE_REQUIRE(holds)    \
  if (static_cast<bool>(holds)) \
    ;                           \
  else                          \
    return testing::Return() & testing::Failure(__FILE__, __LINE__, true)

#define EXPECT_TRUE(value) SLICE_CHECK(value)
#define EXPECT_FALSE(value) SLICE_CHECK(!static_cast<bool>(value))
#define EXPECT_EQ(one, other) SLICE_CHECK(testing::equal(one, other))
#define EXPECT_NE(one, other) SLICE_CHECK(!testing::equal(one, other))
#define EXPECT_GE(one, other) SLICE_CHECK((one) >= (other))
#define EXPECT_STREQ(one, other) SLICE_CHECK(testing::sameText(one, other))
#define ADD_FAILURE() testing::Failure(__FILE__, __LINE__, false)
#define ASSERT_TRUE(value) SLICE_REQUIRE(value)
#define ASSERT_FALSE(value) SLICE_REQUIRE(!static_cast<bool>(value))
#define ASSERT_EQ(one, other) SLICE_REQUIRE(testing::equal(one, other))
#define ASSERT_NE(one, other) SLICE_REQUIRE(!testing::equal(one, other))
#define EXPECT_DEATH(statement, message) \
  if (true)                              \
    ;                                    \
  else                                   \
    statement
#define GTEST_SKIP() return testing::Return() & testing::Skipped()

#define SLICE_CASE(Base, Name)                                               \
  struct Name : Base {                                                       \
    using Fixture = Base;                                                    \
    void TestBody();                                                         \
  };                                                                         \
  [[maybe_unused]] static const bool Name##IsAdded = testing::added<Name>(); \
  void Name::TestBody()
#define TEST(Suite, Name) SLICE_CASE(testing::Test, Suite##_##Name)
#define TEST_F(Suite, Name) SLICE_CASE(Suite, Suite##_##Name)

#define TYPED_TEST_SUITE(Suite, List) using Suite##Types = List
#define TYPED_TEST(Suite, Name)                             \
  template <class TypeParam>                                \
  struct Suite##_##Name : Suite<TypeParam> {                \
    using Fixture = Suite<TypeParam>;                       \
    using TestFixture = Fixture;                            \
    void TestBody();                                        \
  };                                                        \
  [[maybe_unused]] static const bool Suite##Name##IsAdded = \
      testing::added<Suite##_##Name>(Suite##Types());       \
  template <class TypeParam>                                \
  void Suite##_##Name<TypeParam>::TestBody()
