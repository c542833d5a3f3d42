// The radios as the host sees them.
#include "simulator/radios/BluetoothDevice.h"
#include "simulator/radios/BluetoothManager.h"
#include "simulator/radios/RadiosPreferences.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerRadios() {
  RadiosPreferences::registerClass();
  BluetoothDevice::registerClass();
  BluetoothManager::registerClass();
}

}  // namespace sim
