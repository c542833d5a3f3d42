#include "simulator/radios/Radios.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class RadiosPreferencesTest : public TestHost {
 protected:
  RadiosPreferencesTest() { boot(); }

  static objc::Strong<objc::Object> make() {
    return objc::adopt(objc::send<objc::Object, "new">(objc_getClass("RadiosPreferences")));
  }
  static bool airplaneMode(objc::Object preferences) {
    return objc::send<bool, "airplaneMode">(preferences);
  }
};

TEST_F(RadiosPreferencesTest, TakeEffectAtOnce) {
  const auto preferences = make();
  objc::send<void, "setAirplaneMode:">(preferences.get(), true);
  EXPECT_TRUE(Radios::current().isAirplaneModeOn());
  EXPECT_TRUE(airplaneMode(make().get()));
  Radios::current().setAirplaneMode(false);
  EXPECT_FALSE(airplaneMode(preferences.get()));
  objc::send<void, "synchronize">(preferences.get());
  EXPECT_FALSE(Radios::current().isAirplaneModeOn());
  const std::vector<std::string> expected = {"-[RadiosPreferences setAirplaneMode:YES]",
                                             "-[RadiosPreferences synchronize]"};
  EXPECT_EQ(journal(), expected);
}

TEST_F(RadiosPreferencesTest, LeaveBluetoothAsItIs) {
  Radios::current().connect({"Headset"});
  Radios::current().setAirplaneMode(true);
  EXPECT_TRUE(Radios::current().isBluetoothOn());
  EXPECT_EQ(Radios::current().peers().size(), 1U);
}

}  // namespace
}  // namespace sim
