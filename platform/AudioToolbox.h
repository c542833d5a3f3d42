// AudioToolbox.
#pragma once

#include "platform/HostFunction.h"

namespace AudioToolbox {

inline void playSystemSound(unsigned int sound) {
  if (auto* play = platform::hostFunction<"AudioServicesPlaySystemSound", void(unsigned int)>())
    play(sound);
}

}  // namespace AudioToolbox
