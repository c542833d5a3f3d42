// BluetoothManager: the host's hold on Bluetooth.
#pragma once

#include "objc/Class.h"

namespace sim {

struct BluetoothManager : objc::Implementation<BluetoothManager> {
  static objc::Object sharedInstance();

  bool enabled();
  bool setEnabled(bool on);
  // A new array each time, which later changes leave alone.
  objc::Object connectedDevices();
  // Ends the connection and keeps the pairing.
  void disconnectDevicePhysicalLink(objc::Object device);

  static void registerClass();
};

}  // namespace sim
