#include "simulator/springboard/SBBacklightController.h"

#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

using SBBacklightControllerTest = TestHost;

TEST_F(SBBacklightControllerTest, TellsWhetherTheScreenIsLit) {
  boot();
  const objc::Object controller = sharedInstance("SBBacklightController");
  EXPECT_TRUE((objc::send<bool, "screenIsOn">(controller)));
  SBBacklightController::setScreenIsOn(false);
  EXPECT_FALSE((objc::send<bool, "screenIsOn">(controller)));
  EXPECT_EQ(sharedInstance("SBBacklightController"), controller);
}

TEST_F(SBBacklightControllerTest, TheScreenNeedsNoClass) {
  phone.setup.missingClasses.insert("SBBacklightController");
  boot();
  SBBacklightController::setScreenIsOn(false);
  EXPECT_FALSE(sharedInstance("SBBacklightController"));
}

}  // namespace
}  // namespace sim
