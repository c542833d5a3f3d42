// Radios: airplane mode (AppSupport, private) and Bluetooth (BluetoothManager, private).
#pragma once

#include "platform/Foundation.h"

struct RadiosPreferences : objc::Object {
  using Object::Object;
  static objc::Strong<RadiosPreferences> make() {
    return objc::adopt(RadiosPreferences(objc_alloc_init(objc::classNamed<"RadiosPreferences">())));
  }
  void setAirplaneMode(bool on) const { objc::send<void, "setAirplaneMode:">(*this, on); }
  // Up to iOS 17; the setter alone is enough there, too.
  bool canSynchronize() const { return objc::respondsTo<"synchronize">(*this); }
  void synchronize() const { objc::send<void, "synchronize">(*this); }
};

struct BluetoothDevice : objc::Object {
  using Object::Object;
  NSString name() const { return objc::send<NSString, "name">(*this); }
};

struct BluetoothManager : objc::Object {
  using Object::Object;
  static BluetoothManager sharedInstance() {
    return objc::send<BluetoothManager, "sharedInstance">(objc::classNamed<"BluetoothManager">());
  }
  NSArray connectedDevices() const { return objc::send<NSArray, "connectedDevices">(*this); }
  // Keeps the pairing.
  void disconnectDevicePhysicalLink(BluetoothDevice device) const {
    objc::send<void, "disconnectDevicePhysicalLink:">(*this, device);
  }
  bool setEnabled(bool on) const { return objc::send<bool, "setEnabled:">(*this, on); }
};
