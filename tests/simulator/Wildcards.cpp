#include <gtest/gtest.h>

#include <string>

#include "simulator/script/words/Wildcard.h"

namespace sim {
namespace {

TEST(Wildcard, WithoutStarsTheWholeTextCounts) {
  EXPECT_TRUE(matchesWildcard("post \"a\"", "post \"a\""));
  EXPECT_FALSE(matchesWildcard("post \"a\" ", "post \"a\""));
  EXPECT_FALSE(matchesWildcard("post", "post \"a\""));
  EXPECT_TRUE(matchesWildcard("", ""));
}

TEST(Wildcard, AStarStandsForAnyRun) {
  EXPECT_TRUE(matchesWildcard("-[SBMediaController pause]", "-[*]"));
  EXPECT_TRUE(matchesWildcard("abc", "*c"));
  EXPECT_TRUE(matchesWildcard("abc", "a*"));
  EXPECT_TRUE(matchesWildcard("", "**"));
  EXPECT_TRUE(matchesWildcard("abcbc", "a*bc"));
  EXPECT_FALSE(matchesWildcard("abcb", "a*bc"));
  EXPECT_FALSE(matchesWildcard("", "a*"));
}

TEST(Wildcard, TakesNoExponentialTime) {
  std::string pattern;
  for (int star = 0; star < 200; ++star) pattern += "*a";
  EXPECT_FALSE(matchesWildcard(std::string(5000, 'a'), pattern + "b"));
}

}  // namespace
}  // namespace sim
