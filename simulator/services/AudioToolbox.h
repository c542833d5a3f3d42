// AudioToolbox: the system's short sounds.
#pragma once

#include <cstdint>

extern "C" {

// Some of the sounds are taps that are only felt: 1519, 1520 and 1521.
void AudioServicesPlaySystemSound(std::uint32_t sound);

}  // extern "C"
