#include "simulator/controlcenter/ModuleGrid.h"

#include <gtest/gtest.h>

namespace sim {
namespace {

constexpr CGSize upright = {390, 844}, turned = {844, 390};

bool overlap(CGRect a, CGRect b) {
  return a.origin.x < b.origin.x + b.size.width && b.origin.x < a.origin.x + a.size.width &&
         a.origin.y < b.origin.y + b.size.height && b.origin.y < a.origin.y + a.size.height;
}

bool isInside(CGRect frame, CGSize screen) {
  return frame.origin.x >= 0 && frame.origin.y >= 0 &&
         frame.origin.x + frame.size.width <= screen.width &&
         frame.origin.y + frame.size.height <= screen.height;
}

class ModuleGridTest : public testing::TestWithParam<CGSize> {
 protected:
  ModuleGrid grid{GetParam(), false};
};

TEST_P(ModuleGridTest, NoModuleLiesOnAnother) {
  const auto& places = modulePlaces();
  for (std::size_t i = 0; i < places.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_FALSE(overlap(grid.frame(places[i]), grid.frame(places[j]))) << i << ' ' << j;
}

TEST_P(ModuleGridTest, EveryModuleIsOnTheScreen) {
  for (const ModulePlace& place : modulePlaces())
    EXPECT_TRUE(isInside(grid.frame(place), GetParam()));
  EXPECT_TRUE(isInside(grid.expandedFrame(), GetParam()));
}

TEST_P(ModuleGridTest, TheMusicsModuleIsTwoByTwoCells) {
  EXPECT_EQ(mediaPlace().kind, ModuleKind::media);
  EXPECT_EQ(grid.frame(mediaPlace()).size, (CGSize{153, 153}));
  EXPECT_EQ(grid.expandedFrame().size.width, 321);
}

TEST_P(ModuleGridTest, IsMirroredFromRightToLeft) {
  const ModuleGrid mirrored(GetParam(), true);
  for (const ModulePlace& place : modulePlaces()) {
    const CGRect frame = grid.frame(place), other = mirrored.frame(place);
    // The grid itself stands on a whole point.
    EXPECT_NEAR(other.origin.x + other.size.width, GetParam().width - frame.origin.x, 1);
    EXPECT_EQ(other.origin.y, frame.origin.y);
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, ModuleGridTest, testing::Values(upright, turned),
                         [](const auto& screen) {
                           return screen.param.width < screen.param.height ? "Upright" : "Turned";
                         });

}  // namespace
}  // namespace sim
