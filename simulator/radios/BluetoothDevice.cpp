#include "simulator/radios/BluetoothDevice.h"

#include <map>
#include <string>

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

struct KnownDevices {
  std::map<std::string, objc::Object, std::less<>> byAddress;  // owned, and never given up
};

}  // namespace

objc::Object BluetoothDevice::withAddress(std::string_view address, std::string_view name) {
  auto& known = Phone::current().state<KnownDevices>().byAddress;
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
