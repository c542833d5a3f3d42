#include "simulator/radios/BluetoothManager.h"

#include <string>
#include <vector>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/radios/BluetoothDevice.h"
#include "simulator/radios/Radios.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

void journal(const std::string& message) {
  Phone::current().journal.record("-[BluetoothManager " + message + ']');
}

}  // namespace

objc::Object BluetoothManager::sharedInstance() {
  return objc::Object(shared().self());
}

bool BluetoothManager::enabled() {
  return Radios::current().isBluetoothOn();
}

bool BluetoothManager::setEnabled(bool on) {
  journal("setEnabled:" + notation(on));
  Radios::current().setBluetooth(on);
  return true;
}

objc::Object BluetoothManager::connectedDevices() {
  std::vector<objc::Object> devices;
  for (const auto& peer : Radios::current().peers()) {
    if (const auto device = BluetoothDevice::withAddress(peer.address, peer.name))
      devices.push_back(device);
  }
  return array(devices);
}

void BluetoothManager::disconnectDevicePhysicalLink(objc::Object device) {
  const BluetoothDevice* state = stateOf<BluetoothDevice>(device);
  journal("disconnectDevicePhysicalLink:" +
          notation(state != nullptr ? state->name.get() : device));
  if (state != nullptr) Radios::current().disconnect(text(state->address.get()));
}

void BluetoothManager::registerClass() {
  StandIn<BluetoothManager>("BluetoothManager", "BluetoothManager", "NSObject")
      .classMethod<"sharedInstance", &BluetoothManager::sharedInstance>()
      .method<"enabled", &BluetoothManager::enabled>()
      .partial<"setEnabled:", &BluetoothManager::setEnabled>(
          "at once; devices do not connect again when it is switched on")
      .method<"connectedDevices", &BluetoothManager::connectedDevices>()
      .partial<"disconnectDevicePhysicalLink:", &BluetoothManager::disconnectDevicePhysicalLink>(
          "at once, and nobody is notified")
      .finish();
}

}  // namespace sim
