#include "simulator/springboard/SBVolumeControl.h"

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object SBVolumeControl::sharedInstance() {
  return cls() != nullptr ? objc::Object(shared().self()) : nullptr;
}

float SBVolumeControl::mediaVolume() {
  return AudioSystem::current().volume();
}

void SBVolumeControl::setVolume_forCategory(float level, objc::Object category) {
  Phone::current().journal.record("-[SBVolumeControl setVolume:" + notation(level) +
                                  " forCategory:" + notation(category) + ']');
  AudioSystem::current().setVolume(level, text(category));
}

void SBVolumeControl::registerClass() {
  StandIn<SBVolumeControl>("SpringBoard", "SBVolumeControl", "NSObject")
      .classMethod<"sharedInstance", &SBVolumeControl::sharedInstance>()
      .method<"_getMediaVolumeForIAP", &SBVolumeControl::mediaVolume>()
      .partial<"setVolume:forCategory:", &SBVolumeControl::setVolume_forCategory>(
          "at once, where a phone sets it on a queue of its own")
      .finish();
}

}  // namespace sim
