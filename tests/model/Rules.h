// What the model believes of the engine, and beliefs that are wrong on purpose: each must be
// refuted, or the comparison proves nothing.
#pragma once

#include <string_view>

namespace model {

struct Rules {
  bool resetClearsBothModes = false;
  bool storedDateIsWhole = false;
  bool startInvalidatesTheTimerBefore = false;
  bool usersVolumeIsKept = false;  // after a fade
  bool restoreStoresAgain = false;
  bool restartForgetsToWaitForTheTrack = false;
  bool equalTitlesCount = false;
  bool expiredDateIsRemoved = false;
};

// The rules with one belief turned wrong, by its name above; false for another name.
inline bool falsify(Rules& rules, std::string_view name) {
  const auto turn = [name](std::string_view rule, bool& belief) {
    if (rule == name) belief = true;
    return rule == name;
  };
  return turn("resetClearsBothModes", rules.resetClearsBothModes) ||
         turn("storedDateIsWhole", rules.storedDateIsWhole) ||
         turn("startInvalidatesTheTimerBefore", rules.startInvalidatesTheTimerBefore) ||
         turn("usersVolumeIsKept", rules.usersVolumeIsKept) ||
         turn("restoreStoresAgain", rules.restoreStoresAgain) ||
         turn("restartForgetsToWaitForTheTrack", rules.restartForgetsToWaitForTheTrack) ||
         turn("equalTitlesCount", rules.equalTitlesCount) ||
         turn("expiredDateIsRemoved", rules.expiredDateIsRemoved);
}

}  // namespace model
