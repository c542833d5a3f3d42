// Where documents differ.
#include <gtest/gtest.h>

#include "simulator/drawing/Reference.h"

namespace sim {
namespace {

TEST(References, EqualDocumentsHaveNoDifference) {
  EXPECT_EQ(firstDifference("<a/>\n<b/>\n", "<a/>\n<b/>\n"), std::nullopt);
}

TEST(References, TheFirstDifferentElementIsNamed) {
  EXPECT_EQ(firstDifference("<a/>\n  <b x=\"1\"/>\n<c/>\n", "<a/>\n  <b x=\"2\"/>\n<d/>\n"),
            "line 2: expected <b x=\"1\"/>, found <b x=\"2\"/>");
}

TEST(References, DocumentsMayEndTooEarlyOrTooLate) {
  EXPECT_EQ(firstDifference("<a/>\n<b/>\n", "<a/>\n"), "line 2: expected <b/>, found the end");
  EXPECT_EQ(firstDifference("<a/>\n", "<a/>\n<b/>\n"), "line 2: expected the end, found <b/>");
  EXPECT_EQ(firstDifference("", "<a/>\n"), "line 1: expected the end, found <a/>");
}

TEST(References, LongElementsAreShortened) {
  const std::string far(500, 'x');
  const auto difference = firstDifference("<a/>\n", far + "\n");
  ASSERT_TRUE(difference);
  EXPECT_LT(difference->size(), 300u);
}

}  // namespace
}  // namespace sim
