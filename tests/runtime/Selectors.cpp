#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "TestClasses.h"

namespace {

TEST(Selectors, sameNameIsSameSelector) {
  const std::string copied("setFrame:");
  EXPECT_EQ(sel_registerName("setFrame:"), sel_registerName(copied.c_str()));
  EXPECT_NE(sel_registerName("setFrame:"), sel_registerName("setFrame"));
}

TEST(Selectors, nameComesBack) {
  EXPECT_STREQ(sel_getName(sel_registerName("startWithMode:andValue:")), "startWithMode:andValue:");
  EXPECT_STREQ(sel_getName(nullptr), "<null selector>");
  EXPECT_EQ(sel_registerName(nullptr), nullptr);
}

TEST(Selectors, isEqual) {
  EXPECT_TRUE(sel_isEqual(sel_registerName("a"), sel_registerName("a")));
  EXPECT_FALSE(sel_isEqual(sel_registerName("a"), sel_registerName("b")));
}

TEST(Selectors, threadsAgree) {
  constexpr int kNames = 500;
  std::vector<std::vector<SEL>> registered(8, std::vector<SEL>(kNames));
  std::vector<std::thread> threads;
  for (auto& selectors : registered) {
    threads.emplace_back([&selectors] {
      for (int i = 0; i < kNames; ++i) {
        selectors[static_cast<std::size_t>(i)] = sel_registerName(std::to_string(i).c_str());
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  for (const auto& selectors : registered) {
    EXPECT_EQ(selectors, registered.front());
  }
}

}  // namespace
