// Values as documents write them.
#include <gtest/gtest.h>

#include <stdexcept>

#include "simulator/quartzcore/caml/Text.h"

namespace sim::caml {
namespace {

using Kind = PathElement::Kind;

template <class Read>
std::string problemOf(Read read) {
  try {
    read();
  } catch (const std::invalid_argument& problem) {
    return problem.what();
  }
  return "none";
}

TEST(CamlPath, HasItsOperatorsBehindTheirNumbers) {
  const std::vector<PathElement> expected = {
      {Kind::move, {{{1, 2}}}},
      {Kind::line, {{{3, -4.5}}}},
      {Kind::cubic, {{{1, 2}, {3, 4}, {5, 6}}}},
      {Kind::close, {}},
  };
  EXPECT_EQ(pathOf("1 2 m 3 -4.5 l\n  1 2 3 4 5 6 c h"), expected);
}

TEST(CamlPath, MayHaveCommasAndNothingAtAll) {
  EXPECT_EQ(pathOf("1, 2 m 3,4 l"), pathOf("1 2 m 3 4 l"));
  EXPECT_TRUE(pathOf(" ").empty());
}

TEST(CamlPath, GoesOnBehindAClosedPart) {
  EXPECT_EQ(pathOf("0 0 m 1 0 l h 2 2 l h 5 5 m 6 6 l").size(), 7U);
}

TEST(CamlPath, IsRefusedWithWhatWasExpected) {
  EXPECT_EQ(problemOf([] { pathOf("M 1 2"); }),
            "expected a number or one of m, l, c and h in the path, found \"M\"");
  EXPECT_EQ(problemOf([] { pathOf("1 2 3 m"); }),
            "expected 2 numbers before \"m\" in the path, found 3");
  EXPECT_EQ(problemOf([] { pathOf("1 2 m 1 2 3 4 c"); }),
            "expected 6 numbers before \"c\" in the path, found 4");
  EXPECT_EQ(problemOf([] { pathOf("1 2 m 3 h"); }),
            "expected 0 numbers before \"h\" in the path, found 1");
  EXPECT_EQ(problemOf([] { pathOf("1 2 l"); }),
            "expected the path to begin with a move, found \"l\"");
  EXPECT_EQ(problemOf([] { pathOf("1 2 m 3 4"); }), "expected an operator at the end of the path");
}

TEST(CamlNumber, IsDecimalFiniteAndModerate) {
  EXPECT_EQ(number("-0.5"), -0.5);
  EXPECT_EQ(number("+1e3"), 1000);
  for (const char* word : {"", "nan", "inf", "-inf", "0x10", "1e10", "1e999", "1.5x", "--1", "+-1"})
    EXPECT_EQ(number(word), std::nullopt) << word;
}

TEST(CamlNumber, HasToBeOne) {
  EXPECT_EQ(realOf(" 0.25 "), 0.25);
  EXPECT_EQ(problemOf([] { realOf("1 2"); }), "expected one number, found \"1 2\"");
  EXPECT_EQ(problemOf([] { realOf("wide"); }), "expected a number, found \"wide\"");
  EXPECT_EQ(integerOf("-3"), -3);
  EXPECT_EQ(problemOf([] { integerOf("3.5"); }), "expected a whole number, found \"3.5\"");
}

TEST(CamlFlag, IsWrittenInThreeWays) {
  for (const char* word : {"1", "YES", "true"}) EXPECT_TRUE(flagOf(word)) << word;
  for (const char* word : {"0", "NO", "false"}) EXPECT_FALSE(flagOf(word)) << word;
  EXPECT_EQ(problemOf([] { flagOf("2"); }), "expected 0 or 1, found \"2\"");
}

TEST(CamlColor, HasOneToFourComponents) {
  EXPECT_EQ(colorOf("0.5"), (ColorComponents{{0.5, 0.5, 0.5, 1}, true}));
  EXPECT_EQ(colorOf("0.5 0.25"), (ColorComponents{{0.5, 0.5, 0.5, 0.25}, true}));
  EXPECT_EQ(colorOf("1 0.5 0"), (ColorComponents{{1, 0.5, 0, 1}, false}));
  EXPECT_EQ(colorOf("1 0.5 0 0.25"), (ColorComponents{{1, 0.5, 0, 0.25}, false}));
  EXPECT_EQ(problemOf([] { colorOf(""); }), "expected a colour of 1 to 4 numbers, found \"\"");
  EXPECT_EQ(problemOf([] { colorOf("1 1 2"); }),
            "expected colour components from 0 to 1, found \"1 1 2\"");
}

TEST(CamlTransform, IsMadeOfFunctions) {
  EXPECT_EQ(transformOf("identity"), CATransform3D());
  EXPECT_EQ(transformOf("scale(0.5, 2, 1)").affine(), (CGAffineTransform{0.5, 0, 0, 2, 0, 0}));
  EXPECT_EQ(transformOf("scale(3)").affine(), (CGAffineTransform{3, 0, 0, 3, 0, 0}));
  EXPECT_EQ(transformOf("translate(5, -6)").affine(), (CGAffineTransform{1, 0, 0, 1, 5, -6}));
  EXPECT_EQ(transformOf("matrix(1,2,0,0, 3,4,0,0, 0,0,1,0, 5,6,0,1)").affine(),
            (CGAffineTransform{1, 2, 3, 4, 5, 6}));
}

TEST(CamlTransform, TurnsFromTheRightDownwards) {
  for (const char* text :
       {"rotate(90deg)", "rotate(1.5707963267948966rad)", "rotate(1.5707963267948966)",
        "rotate(90deg, 0, 0, 1)", "rotate(-90deg, 0, 0, -1)"}) {
    const CGPoint turned = transformOf(text).affine().apply(CGPoint{1, 0});
    EXPECT_NEAR(turned.x, 0, 1e-12) << text;
    EXPECT_NEAR(turned.y, 1, 1e-12) << text;
  }
}

TEST(CamlTransform, AppliesTheLastFunctionFirst) {
  const CGPoint moved = transformOf("translate(10, 0) scale(2)").affine().apply(CGPoint{1, 1});
  EXPECT_EQ(moved, (CGPoint{12, 2}));
}

TEST(CamlTransform, IsRefusedOutsideThePlaneAndWhereItIsNone) {
  EXPECT_EQ(problemOf([] { transformOf("rotate(1, 1, 0, 0)"); }),
            "expected a rotation in the plane");
  for (const char* text : {"", "scale", "scale(", "scale)1(", "scale()", "scale(1,2,3,4)",
                           "skew(1)", "matrix(1)", "scale(1e6) scale(1e6)"})
    EXPECT_TRUE(problemOf([text] {
                  transformOf(text);
                }).starts_with("expected a transform of scale(), rotate(), translate()"))
        << text;
}

}  // namespace
}  // namespace sim::caml
