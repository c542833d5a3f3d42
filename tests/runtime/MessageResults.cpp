// Results in integer registers, in vector registers and in memory, cached and not, of sends to
// objects, to nil and to super.
#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

template <std::size_t Words>
struct Words64 {
  std::array<long, Words> words;
  bool operator==(const Words64&) const = default;
};
struct Point {
  double x, y;
  bool operator==(const Point&) const = default;
};
struct Rectangle {
  double x, y, width, height;
  bool operator==(const Rectangle&) const = default;
};
struct Mixed {
  double number;
  long integer;
  bool operator==(const Mixed&) const = default;
};

template <typename Result>
constexpr bool kInMemory = std::is_class_v<Result> && sizeof(Result) > 16;

enum class To { kObject, kSuper, kSuper2 };

template <typename Result>
void (*entryPoint(To to))() {
#if defined(__x86_64__)
  if constexpr (kInMemory<Result>) {
    return to == To::kObject  ? &objc_msgSend_stret
           : to == To::kSuper ? &objc_msgSendSuper_stret
                              : &objc_msgSendSuper2_stret;
  }
#endif
  return to == To::kObject  ? &objc_msgSend
         : to == To::kSuper ? &objc_msgSendSuper
                            : &objc_msgSendSuper2;
}

template <typename Result>
Result sendTo(void* receiver, To to, long argument) {
  using Prototype = Result (*)(void*, SEL, long);
  return reinterpret_cast<Prototype>(entryPoint<Result>(to))(receiver, sel("make:"), argument);
}

template <typename Result>
Result produce(long seed);
template <>
double produce<double>(long seed) {
  return static_cast<double>(seed) + 0.5;
}
template <>
float produce<float>(long seed) {
  return static_cast<float>(seed) + 0.25f;
}
template <>
char produce<char>(long seed) {
  return static_cast<char>(seed);
}
template <>
Point produce<Point>(long seed) {
  return {static_cast<double>(seed), 2.5};
}
template <>
Mixed produce<Mixed>(long seed) {
  return {1.5, seed};
}
template <>
Rectangle produce<Rectangle>(long seed) {
  return {1, 2, 3, static_cast<double>(seed)};
}
template <>
Words64<1> produce<Words64<1>>(long seed) {
  return {{seed}};
}
template <>
Words64<2> produce<Words64<2>>(long seed) {
  return {{seed, 2}};
}
template <>
Words64<3> produce<Words64<3>>(long seed) {
  return {{seed, 2, 3}};
}
template <>
Words64<4> produce<Words64<4>>(long seed) {
  return {{seed, 2, 3, 4}};
}
template <>
Words64<6> produce<Words64<6>>(long seed) {
  return {{seed, 2, 3, 4, 5, 6}};
}

template <typename Result>
Result method(id, SEL, long seed) {
  return produce<Result>(seed);
}

template <typename Result>
Result wrongMethod(id, SEL, long seed) {
  return produce<Result>(seed + 1);
}

template <typename Result>
class MessageResults : public testing::Test {};

using Results = testing::Types<double, float, char, Point, Mixed, Rectangle, Words64<1>, Words64<2>,
                               Words64<3>, Words64<4>, Words64<6>>;
TYPED_TEST_SUITE(MessageResults, Results);

TYPED_TEST(MessageResults, ofAnObject) {
  Class cls = makeClass("Results");
  addMethod(cls, "make:", &method<TypeParam>);
  id object = make(cls);
  EXPECT_EQ(sendTo<TypeParam>(object, To::kObject, 7), produce<TypeParam>(7)) << "uncached";
  EXPECT_EQ(sendTo<TypeParam>(object, To::kObject, 8), produce<TypeParam>(8)) << "cached";
  objc_release(object);
}

TYPED_TEST(MessageResults, ofSuper) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(base, "make:", &method<TypeParam>);
  addMethod(derived, "make:", &wrongMethod<TypeParam>);
  id object = make(derived);
  objc_super toSuper{object, base};
  objc_super toSuper2{object, derived};
  for (const char* how : {"uncached", "cached"}) {
    EXPECT_EQ(sendTo<TypeParam>(&toSuper, To::kSuper, 7), produce<TypeParam>(7)) << how;
  }
  for (const char* how : {"cached by super", "cached"}) {
    EXPECT_EQ(sendTo<TypeParam>(&toSuper2, To::kSuper2, 8), produce<TypeParam>(8)) << how;
  }
  objc_release(object);
}

TYPED_TEST(MessageResults, ofSuper2Uncached) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(base, "make:", &method<TypeParam>);
  id object = make(derived);
  objc_super toSuper2{object, derived};
  EXPECT_EQ(sendTo<TypeParam>(&toSuper2, To::kSuper2, 8), produce<TypeParam>(8));
  objc_release(object);
}

TYPED_TEST(MessageResults, ofNilAreZeroInRegisters) {
  if constexpr (!kInMemory<TypeParam>) {
    EXPECT_EQ(sendTo<TypeParam>(nullptr, To::kObject, 7), TypeParam{});
  } else {
    // A structure in memory is left alone; that the call returns at all is what counts.
    (void)sendTo<TypeParam>(nullptr, To::kObject, 7);
  }
}

#if defined(__x86_64__)
TEST(MessageToNil, leavesAStructureInMemoryAloneAndReturnsItsAddress) {
  Rectangle rectangle{1, 2, 3, 4};
  // The hidden pointer to the result is the first argument and the result. As a variadic call it
  // clears %rax before, where the pointer might be by chance.
  using Prototype = Rectangle* (*)(Rectangle*, id, SEL, ...);
  const auto sender = reinterpret_cast<Prototype>(&objc_msgSend_stret);
  EXPECT_EQ(sender(&rectangle, nullptr, sel("frame")), &rectangle);
  EXPECT_EQ(rectangle, (Rectangle{1, 2, 3, 4}));
}
#endif

id receiverOf(id self, SEL) {
  return self;
}

TEST(MessageToSuper, passesTheReceiver) {
  Class base = makeClass("Base");
  Class derived = makeClass("Derived", base);
  addMethod(base, "receiver", &receiverOf);
  id object = make(derived);
  objc_super toSuper{object, base};
  const auto sender = reinterpret_cast<id (*)(objc_super*, SEL)>(&objc_msgSendSuper);
  EXPECT_EQ(sender(&toSuper, sel("receiver")), object);
  EXPECT_EQ(sender(&toSuper, sel("receiver")), object);
  objc_release(object);
}

}  // namespace
