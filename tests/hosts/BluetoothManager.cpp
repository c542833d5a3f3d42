#include <nlohmann/json.hpp>

#include "simulator/radios/Radios.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class BluetoothManagerTest : public TestHost {
 protected:
  BluetoothManagerTest() {
    boot();
    Radios::current().connect({"Speaker", "Headset", "Headset"});
  }

  static objc::Object manager() { return sharedInstance("BluetoothManager"); }
  static objc::Object devices() { return objc::send<objc::Object, "connectedDevices">(manager()); }
  static objc::Object device(unsigned long index) {
    return objc::send<objc::Object, "objectAtIndex:">(devices(), index);
  }
  static unsigned long count(objc::Object array) {
    return objc::send<unsigned long, "count">(array);
  }
  static std::string nameOf(objc::Object device) {
    return text(objc::send<objc::Object, "name">(device));
  }
  static std::string addressOf(objc::Object device) {
    return text(objc::send<objc::Object, "address">(device));
  }
  static void disconnect(objc::Object device) {
    objc::send<void, "disconnectDevicePhysicalLink:">(manager(), device);
  }
};

TEST_F(BluetoothManagerTest, ListsConnectedDevicesInOrder) {
  ASSERT_EQ(count(devices()), 3U);
  EXPECT_EQ(nameOf(device(0)), "Speaker");
  EXPECT_EQ(nameOf(device(2)), "Headset");
  EXPECT_EQ(device(1), device(1)) << "a device has one object";
  EXPECT_FALSE(device(1) == device(2));
  EXPECT_NE(addressOf(device(1)), addressOf(device(2)));
}

TEST_F(BluetoothManagerTest, DisconnectsThatDeviceAlone) {
  const objc::Object before = devices();
  const objc::Object last = device(2);
  disconnect(device(1));
  EXPECT_EQ(count(before), 3U) << "a list that was handed out stays";
  ASSERT_EQ(count(devices()), 2U);
  EXPECT_EQ(device(1), last);
  disconnect(objc::send<objc::Object, "objectAtIndex:">(before, 1UL));
  EXPECT_EQ(count(devices()), 2U) << "it was disconnected already";
  EXPECT_EQ(journal().front(), "-[BluetoothManager disconnectDevicePhysicalLink:\"Headset\"]");
}

TEST_F(BluetoothManagerTest, NobodyIsNoDevice) {
  disconnect(nullptr);
  EXPECT_EQ(count(devices()), 3U);
  EXPECT_EQ(journal().front(), "-[BluetoothManager disconnectDevicePhysicalLink:nil]");
}

TEST_F(BluetoothManagerTest, SwitchedOffEndsEveryConnection) {
  EXPECT_TRUE((objc::send<bool, "setEnabled:">(manager(), false)));
  EXPECT_FALSE((objc::send<bool, "enabled">(manager())));
  EXPECT_EQ(count(devices()), 0U);
  objc::send<bool, "setEnabled:">(manager(), true);
  EXPECT_TRUE((objc::send<bool, "enabled">(manager())));
  EXPECT_EQ(count(devices()), 0U);
}

TEST_F(BluetoothManagerTest, ARestartOfTheHostChangesNothing) {
  const auto saved = phone.saveSurvivors();
  const std::string address = addressOf(device(1));
  Radios::current().setBluetooth(false);
  Radios::current().setAirplaneMode(true);
  phone.restoreSurvivors(saved);
  EXPECT_TRUE(Radios::current().isBluetoothOn());
  EXPECT_FALSE(Radios::current().isAirplaneModeOn());
  ASSERT_EQ(count(devices()), 3U);
  EXPECT_EQ(nameOf(device(0)), "Speaker");
  EXPECT_EQ(addressOf(device(1)), address);
}

}  // namespace
}  // namespace sim
