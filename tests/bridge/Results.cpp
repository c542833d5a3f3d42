// Results and arguments of every type, through the entry point that belongs to them.
#include "tests/bridge/Giver.h"

namespace {

using bridge::Giver;
using bridge::sample;

// Poisons what a result that nobody wrote would be read from.
[[gnu::noinline]] unsigned long poison() {
  volatile unsigned char stack[2048];
  for (unsigned i = 0; i < sizeof stack; ++i) stack[i] = 0xA5;
  return stack[0] * 0x0101010101010101UL;
}
[[gnu::noinline]] double poisonFloatingPoint() {
  return double(poison());
}

template <class T>
struct Results : testing::Test {
  static void SetUpTestSuite() { ASSERT_TRUE(Giver<T>::registerClass()); }
  objc::Strong<objc::Object> giver = Giver<T>::make();
};
TYPED_TEST_SUITE(Results, bridge::SampleTypes);

TYPED_TEST(Results, ComeBackWhole) {
  const TypeParam found = objc::send<TypeParam, "value">(this->giver.get());
  EXPECT_TRUE(found == sample<TypeParam>());
}

TYPED_TEST(Results, OfClassMethodsComeBackWhole) {
  const TypeParam found = objc::send<TypeParam, "value">(Giver<TypeParam>::cls());
  EXPECT_TRUE(found == sample<TypeParam>());
}

TYPED_TEST(Results, ReturnTheArgumentInARegister) {
  const TypeParam found = objc::send<TypeParam, "echo:">(this->giver.get(), sample<TypeParam>());
  EXPECT_TRUE(found == sample<TypeParam>());
}

TYPED_TEST(Results, ReturnTheArgumentOnTheStack) {
  const TypeParam found = objc::send<TypeParam, "one:two:three:four:five:six:last:">(
      this->giver.get(), 1L, 2.0, 3L, 4.0, 5L, 6.0, sample<TypeParam>());
  EXPECT_TRUE(found == sample<TypeParam>());
}

TYPED_TEST(Results, OfNilAreZero) {
  const TypeParam zero{};
  ASSERT_FALSE(zero == sample<TypeParam>());
  poison();
  EXPECT_TRUE((objc::send<TypeParam, "value">(id(nullptr)) == zero));
  poisonFloatingPoint();
  EXPECT_TRUE((objc::send<TypeParam, "value">(objc::Object()) == zero));
  poison();
  EXPECT_TRUE((objc::send<TypeParam, "value">(Class(nullptr)) == zero));
  poisonFloatingPoint();
  EXPECT_TRUE((objc::send<TypeParam, "echo:">(id(nullptr), sample<TypeParam>()) == zero));
  poison();
  EXPECT_TRUE((objc::sendSuper<TypeParam, "value">(nullptr, Giver<TypeParam>::cls()) == zero));
}

#if defined(__x86_64__)
TYPED_TEST(Results, UseTheirEntryPoint) {
  constexpr bool inMemory = std::is_class_v<TypeParam> && sizeof(TypeParam) > 16;
  EXPECT_EQ(objc::returnedInMemory<TypeParam>, inMemory);
  EXPECT_EQ(reinterpret_cast<void*>(objc::messageEntry<TypeParam>()),
            reinterpret_cast<void*>(inMemory ? &objc_msgSend_stret : &objc_msgSend));
  EXPECT_EQ(reinterpret_cast<void*>(objc::superEntry<TypeParam>()),
            reinterpret_cast<void*>(inMemory ? &objc_msgSendSuper2_stret : &objc_msgSendSuper2));
}
#else
TYPED_TEST(Results, UseTheOnlyEntryPoint) {
  EXPECT_FALSE(objc::returnedInMemory<TypeParam>);
  EXPECT_EQ(reinterpret_cast<void*>(objc::messageEntry<TypeParam>()),
            reinterpret_cast<void*>(&objc_msgSend));
}
#endif

}  // namespace
