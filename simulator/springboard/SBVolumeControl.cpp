#include "simulator/springboard/SBVolumeControl.h"

#include "simulator/foundation/Exception.h"
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
  if (!category)
    raiseException("NSInternalInconsistencyException",
                   methodName(objc::Object(self()), "setVolume:forCategory:") +
                       ": there is no category of nothing");
  AudioSystem::current().write(level, text(category));
}

void SBVolumeControl::registerClass() {
  StandIn<SBVolumeControl>("SpringBoard", "SBVolumeControl", "NSObject")
      .classMethod<"sharedInstance", &SBVolumeControl::sharedInstance>()
      .partial<"_getMediaVolumeForIAP", &SBVolumeControl::mediaVolume>(
          "sees what was written before, as a phone does, but never keeps the main thread waiting")
      .partial<"setVolume:forCategory:", &SBVolumeControl::setVolume_forCategory>(
          "takes no time; one volume for all routes, which go to the nearest step")
      .finish();
}

}  // namespace sim
