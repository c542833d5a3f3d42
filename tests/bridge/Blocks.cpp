// Calling blocks, and what they look like to others.
#include <gtest/gtest.h>

#include <string>

#include "objc/Block.h"
#include "tests/bridge/SampleTypes.h"

namespace {

using bridge::sample;

template <class T>
struct BlocksOf : testing::Test {};
TYPED_TEST_SUITE(BlocksOf, bridge::SampleTypes);

TYPED_TEST(BlocksOf, EveryTypeTakeAndReturnIt) {
  auto echo = objc::block<TypeParam(TypeParam)>([](TypeParam value) { return value; });
  EXPECT_TRUE(echo.get()(sample<TypeParam>()) == sample<TypeParam>());
}

TYPED_TEST(BlocksOf, EveryTypeReturnZeroWhenNil) {
  objc::Block<TypeParam(TypeParam)> absent;
  EXPECT_TRUE(absent(sample<TypeParam>()) == TypeParam{});
}

struct ButtonView : objc::Object {
  using Object::Object;
};

// As the host finds it: from the descriptor, whose helpers are optional.
std::string signatureOf(objc::Object block) {
  auto* header = reinterpret_cast<objc::BlockHeader*>(block.get());
  EXPECT_TRUE(header->flags & objc::blockHasSignature);
  if (header->flags & objc::blockHasCopyDispose)
    return static_cast<objc::BlockDescriptor*>(header->descriptor)->signature;
  return static_cast<objc::PlainBlockDescriptor*>(header->descriptor)->signature;
}

TEST(Blocks, RunTheirFunction) {
  int runs = 0;
  auto count = objc::block<void()>([&runs] { ++runs; });
  count.get()();
  count.get()();
  EXPECT_EQ(runs, 2);
}

TEST(Blocks, OfNilDoNothing) {
  objc::Block<void()> absent;
  absent();
  EXPECT_FALSE(absent);
}

TEST(Blocks, PassViews) {
  const ButtonView button(bridge::sample<id>());
  auto same = objc::block<bool(ButtonView, double, bool)>(
      [&](ButtonView given, double fraction, bool flag) {
        return given == button && fraction == 0.5 && flag;
      });
  EXPECT_TRUE(same.get()(button, 0.5, true));
  EXPECT_FALSE(same.get()(button, 0.5, false));
  EXPECT_FALSE(same.get()(ButtonView(), 0.5, true));
}

TEST(Blocks, KeepStateBetweenCalls) {
  auto next = objc::block<long()>([count = 0L]() mutable { return ++count; });
  next.get()();
  EXPECT_EQ(next.get()(), 2);
}

TEST(Blocks, AreCalledLikeThePlatformCallsThem) {
  auto half = objc::block<double(long)>([](long number) { return double(number) / 2; });
  auto* header = reinterpret_cast<objc::BlockHeader*>(half.get().get());
  // The literal itself is the first argument, and there is no selector.
  auto invoke = objc::loadBlockFunction<double (*)(objc::BlockHeader*, long)>(&header->invoke);
  EXPECT_EQ(invoke(header, 5), 2.5);
}

TEST(Blocks, DescribeTheirSignature) {
  EXPECT_EQ(signatureOf(objc::block<void()>([] {}).get()), "v@?");
  EXPECT_EQ(signatureOf(objc::block<void(bool)>([](bool) {}).get()), "v@?B");
  EXPECT_EQ(signatureOf(objc::block<ButtonView(ButtonView, double)>([](ButtonView b, double) {
                          return b;
                        }).get()),
            "@@?@d");
  EXPECT_EQ(signatureOf(objc::block<bool(objc::Block<void()>, long)>([](objc::Block<void()>, long) {
                          return true;
                        }).get()),
            "B@?@?q");
}

TEST(Blocks, DescribeTheirSignatureBehindTheHelpers) {
  std::string text = "owned";
  auto owning = objc::block<unsigned long()>([text] { return text.size(); });
  EXPECT_EQ(signatureOf(owning.get()), "Q@?");
}

TEST(Blocks, SayHowLargeTheyAre) {
  struct Large {
    long numbers[9];
  } large{};
  auto sum = objc::block<long()>([large] { return large.numbers[0]; });
  auto* header = reinterpret_cast<objc::BlockHeader*>(sum.get().get());
  const auto size = static_cast<objc::PlainBlockDescriptor*>(header->descriptor)->size;
  EXPECT_GE(size, sizeof(objc::BlockHeader) + sizeof(Large));
}

}  // namespace
