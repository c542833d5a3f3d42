#include "simulator/services/AudioToolbox.h"

#include "simulator/machine/Phone.h"

void AudioServicesPlaySystemSound(std::uint32_t sound) {
  sim::Phone::current().journal.record("AudioServicesPlaySystemSound(" + std::to_string(sound) +
                                       ')');
}
