// What Control Center's switches stand for. Each goes the way of the system's own: by the host's
// classes, where there are such, so that a journal has the same lines whoever has done it.
#pragma once

#include <functional>

namespace sim {

struct Switch {
  std::function<bool()> isOn;
  std::function<void(bool)> turn;
};

Switch airplaneSwitch();
Switch mobileDataSwitch();
Switch wifiSwitch();
Switch bluetoothSwitch();
Switch focusSwitch();
Switch rotationLockSwitch();
Switch torchSwitch();

// From 0 to 1.
inline constexpr float standardBrightness = 0.5F;
float brightness();
void setBrightness(float level);

}  // namespace sim
