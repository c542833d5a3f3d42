#include "simulator/quartzcore/CAAnimation.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object animation(id cls) {
  return autorelease(makeOf(cls));
}

Object valueForKey(Object self, Object key) {
  const auto& values = CAAnimation::of(self).values;
  const auto found = values.find(text(key));
  return found != values.end() ? found->second.get() : Object();
}
void setValueForKey(Object self, Object value, Object key) {
  CAAnimation::of(self).values[text(key)] = objc::retain(value);
}

template <const char* Name>
struct Kind : objc::Implementation<Kind<Name>> {};

template <const char* Name>
void registerKind(const char* superclass) {
  StandIn<Kind<Name>>("QuartzCore", Name, superclass).finish();
}

constexpr char property[] = "CAPropertyAnimation";
constexpr char basic[] = "CABasicAnimation";
constexpr char spring[] = "CASpringAnimation";
constexpr char keyframe[] = "CAKeyframeAnimation";
constexpr char transition[] = "CATransition";
constexpr char group[] = "CAAnimationGroup";

}  // namespace

void CAAnimation::registerClass() {
  StandIn<CAAnimation>("QuartzCore", "CAAnimation", "NSObject")
      .factory<"animation", &animation>()
      .partial<"valueForUndefinedKey:", &valueForKey>("no key has a value of its own at first")
      .method<"setValue:forUndefinedKey:", &setValueForKey>()
      .finish();
  registerKind<property>("CAAnimation");
  registerKind<basic>(property);
  registerKind<spring>(basic);
  registerKind<keyframe>(property);
  registerKind<transition>("CAAnimation");
  registerKind<group>("CAAnimation");
}

}  // namespace sim
