// Paths written as text.
#include <stdexcept>

#include "simulator/drawing/SvgElement.h"
#include "simulator/quartzcore/PathText.h"
#include "tests/drawing/DrawingTest.h"

namespace sim {
namespace {

std::string written(std::string_view text) {
  return svgPath(pathFromText(text));
}

TEST(PathTexts, AreReadAsTheyAreWritten) {
  EXPECT_EQ(written("M 1 2 L 3 4.5 C 1 1 2 2 3 3 Z M -1 0 L 2 2"),
            "M1 2 L3 4.5 C1 1 2 2 3 3 Z M-1 0 L2 2");
  EXPECT_EQ(written(""), "");
}

TEST(PathTexts, HaveRoundThings) {
  EXPECT_EQ(written("R 0 0 10 8 2"),
            "M2 0 L8 0 C9.1 0 10 0.9 10 2 L10 6 C10 7.1 9.1 8 8 8 L2 8 C0.9 8 0 7.1 0 6 L0 2 "
            "C0 0.9 0.9 0 2 0 Z");
  const auto circle = pathFromText("O 5 5 2");
  EXPECT_EQ(circle.front().points[0], (CGPoint{5, 3}));
  EXPECT_EQ(circle.size(), 10U);
}

TEST(PathTexts, ThatAreWrongStopTheProgram) {
  EXPECT_THROW(pathFromText("M 1"), std::logic_error);
  EXPECT_THROW(pathFromText("Q 1 2 3 4"), std::logic_error);
}

}  // namespace
}  // namespace sim
