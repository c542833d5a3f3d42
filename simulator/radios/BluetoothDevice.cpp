#include "simulator/radios/BluetoothDevice.h"

#include <map>
#include <string>

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object BluetoothDevice::withAddress(std::string_view address, std::string_view name) {
  // Not owners: the objects are never freed, not even when the program ends.
  static std::map<std::string, objc::Object, std::less<>> known;
  if (const auto found = known.find(address); found != known.end()) return found->second;
  auto device = make();
  if (!device) return nullptr;
  of(device.get()).address = objc::retain(string(address));
  of(device.get()).name = objc::retain(string(name));
  return known.emplace(address, device.detach()).first->second;
}

void BluetoothDevice::registerClass() {
  StandIn<BluetoothDevice>("BluetoothManager", "BluetoothDevice", "NSObject")
      .readonlyProperty<"name", &BluetoothDevice::name>()
      .readonlyProperty<"address", &BluetoothDevice::address>()
      .finish();
}

}  // namespace sim
