// BluetoothManager: a device that the phone is, or was, connected to.
#pragma once

#include <string_view>

#include "objc/Class.h"

namespace sim {

struct BluetoothDevice : objc::Implementation<BluetoothDevice> {
  objc::Strong<objc::Object> name;     // NSString
  objc::Strong<objc::Object> address;  // NSString

  // The device's one object, not owned: it lives as long as the process, like the platform's.
  // nil when the class is missing.
  static objc::Object withAddress(std::string_view address, std::string_view name);

  static void registerClass();
};

}  // namespace sim
