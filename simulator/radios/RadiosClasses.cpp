// The radios as the host sees them.
#include "simulator/Frameworks.h"
#include "simulator/radios/BluetoothDevice.h"
#include "simulator/radios/BluetoothManager.h"
#include "simulator/radios/RadiosPreferences.h"

namespace sim {

void registerRadios() {
  RadiosPreferences::registerClass();
  BluetoothDevice::registerClass();
  BluetoothManager::registerClass();
}

}  // namespace sim
