#include "simulator/uikit/Animation.h"

#include "simulator/phone/Phone.h"

namespace sim {
namespace {

bool enabledNow = true;

}  // namespace

bool animationsAreEnabled() {
  return enabledNow;
}
void setAnimationsEnabled(bool enabled) {
  enabledNow = enabled;
}

void finishAnimation(double seconds, AnimationCompletion completion) {
  if (!completion) return;
  if (seconds <= 0 || !enabledNow) return completion(true);
  Phone& phone = Phone::current();
  auto kept = objc::adopt(objc::send<AnimationCompletion, "copy">(completion));
  phone.queue.add(phone.clock.uptime() + nanoseconds(seconds),
                  [kept = std::move(kept)] { kept.get()(true); });
}

}  // namespace sim
