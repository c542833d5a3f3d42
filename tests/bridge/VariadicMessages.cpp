// Messages that end in "..." on the platform.
#include <gtest/gtest.h>

#include <cstdarg>
#include <string>

#include "objc/Class.h"

namespace {

std::string received;

// What a compiler makes of +receive:(const char *)kinds, ...
id receive(id cls, SEL, const char* kinds, ...) {
  std::va_list list;
  va_start(list, kinds);
  received = std::string(kinds) + ":";
  for (const char* kind = kinds; *kind != 0; ++kind) {
    if (*kind == 'd') received += " " + std::to_string(va_arg(list, double));
    if (*kind == 'q') received += " " + std::to_string(va_arg(list, long));
    if (*kind == 'i') received += " " + std::to_string(va_arg(list, int));
    if (*kind == '@') received += std::string(" ") + class_getName(Class(va_arg(list, id)));
  }
  va_end(list);
  return cls;
}

struct Text : objc::Implementation<Text> {};

struct VariadicMessages : testing::Test {
  static void SetUpTestSuite() {
    ASSERT_TRUE(objc::ClassBuilder<Text>("Text", "NSObject").finish());
    class_addMethod(object_getClass(reinterpret_cast<id>(Text::cls())),
                    sel_registerName("receive:"), reinterpret_cast<IMP>(&receive), "@@:r*");
  }
  template <class... Rest>
  static objc::Object send(const char* kinds, Rest... rest) {
    return objc::sendVariadic<objc::Object, "receive:">(Text::cls(), kinds, rest...);
  }
};

TEST_F(VariadicMessages, NeedNoFurtherArgument) {
  EXPECT_EQ(send("").get(), reinterpret_cast<id>(Text::cls()));
  EXPECT_EQ(received, ":");
}

TEST_F(VariadicMessages, PassEveryKindOfArgument) {
  // The first message looks the method up, the second finds it in the cache.
  for (int round = 0; round < 2; ++round) {
    received.clear();
    send("dqi@", 1.5, -2L, 3, objc::Object(reinterpret_cast<id>(Text::cls())));
    EXPECT_EQ(received, "dqi@: 1.500000 -2 3 Text");
  }
}

TEST_F(VariadicMessages, PassMoreArgumentsThanRegisters) {
  send("dddddddddqqqqqqq", 1., 2., 3., 4., 5., 6., 7., 8., 9., 1L, 2L, 3L, 4L, 5L, 6L, 7L);
  EXPECT_EQ(received,
            "dddddddddqqqqqqq: 1.000000 2.000000 3.000000 4.000000 5.000000 6.000000 7.000000 "
            "8.000000 9.000000 1 2 3 4 5 6 7");
}

TEST_F(VariadicMessages, ToAnAbsentClassGiveNil) {
  received.clear();
  EXPECT_FALSE((objc::sendVariadic<objc::Object, "receive:">(Class(nullptr), "q", 1L)));
  EXPECT_EQ(received, "");
}

TEST_F(VariadicMessages, CompareTheFixedArgument) {
  EXPECT_DEATH((objc::sendVariadic<objc::Object, "receive:">(Text::cls(), 1L)),
               "send of \\+\\[Text receive:\\]: argument 1: expected 'r?\\*', found 'q'");
}

}  // namespace
