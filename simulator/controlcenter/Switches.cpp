#include "simulator/controlcenter/Switches.h"

#include <cmath>
#include <string>

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/donotdisturb/Focus.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/radios/Radios.h"
#include "simulator/uikit/application/UIApplication.h"

namespace sim {
namespace {

using objc::Object;

// Of the host: gone with it.
struct Hardware {
  bool torch = false;
  float brightness = standardBrightness;
};

Hardware& hardware() {
  return Phone::current().state<Hardware>();
}

void record(const std::string& what, bool on) {
  Phone::current().journal.record(what + (on ? " on" : " off"));
}

void setAirplaneMode(bool on) {
  const auto radios = objc::adopt(objc::send<Object, "new">(objc_getClass("RadiosPreferences")));
  objc::send<void, "setAirplaneMode:">(radios.get(), on);
}

void setBluetooth(bool on) {
  const Class manager = objc_getClass("BluetoothManager");
  objc::send<bool, "setEnabled:">(objc::send<Object, "sharedInstance">(manager), on);
}

void beginFocus(Object service) {
  const Object details =
      objc::send<Object, "userRequestedAssertionDetailsWithIdentifier:modeIdentifier:lifetime:">(
          objc_getClass("DNDModeAssertionDetails"),
          string("com.apple.control-center.manual-toggle"),
          string("com.apple.donotdisturb.mode.default"), Object());
  id error = nullptr;
  objc::send<Object, "takeModeAssertionWithDetails:error:">(service, details, &error);
}

void setFocus(bool on) {
  const Object service = objc::send<Object, "serviceForClientIdentifier:">(
      objc_getClass("DNDModeAssertionService"),
      string("com.apple.donotdisturb.control-center.module"));
  id error = nullptr;
  if (!service) return;
  if (on)
    beginFocus(service);
  else
    objc::send<void, "invalidateAllActiveModeAssertionsWithError:">(service, &error);
}

UIApplication* application() {
  return stateOf<UIApplication>(UIApplication::sharedApplication());
}

}  // namespace

Switch airplaneSwitch() {
  return {[] { return Radios::current().isAirplaneModeOn(); }, setAirplaneMode};
}

Switch mobileDataSwitch() {
  return {[] { return Radios::current().isMobileDataOn(); },
          [](bool on) {
            if (Radios::current().isAirplaneModeOn()) return;
            record("mobile data", on);
            Radios::current().setMobileData(on);
          }};
}

Switch wifiSwitch() {
  return {[] { return Radios::current().isWifiOn(); },
          [](bool on) {
            record("Wi-Fi", on);
            Radios::current().setWifi(on);
          }};
}

Switch bluetoothSwitch() {
  return {[] { return Radios::current().isBluetoothOn(); }, setBluetooth};
}

Switch focusSwitch() {
  return {[] { return Focus::current().isOn(); }, setFocus};
}

Switch rotationLockSwitch() {
  return {[] { return application() != nullptr && application()->isRotationLocked; },
          [](bool on) {
            record("rotation lock", on);
            if (application() != nullptr) application()->isRotationLocked = on;
          }};
}

Switch torchSwitch() {
  return {[] { return hardware().torch; },
          [](bool on) {
            record("torch", on);
            hardware().torch = on;
          }};
}

float brightness() {
  return hardware().brightness;
}

void setBrightness(float level) {
  if (level == hardware().brightness) return;
  hardware().brightness = level;
  Phone::current().journal.record("brightness " + std::to_string(std::lround(level * 100)) + " %");
}

}  // namespace sim
