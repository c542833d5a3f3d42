#include "simulator/springboard/SBApplication.h"

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object SBApplication::withBundleIdentifier(std::string_view identifier) {
  auto application = make();
  if (!application) return nullptr;
  of(application.get()).bundleIdentifier = objc::retain(string(identifier));
  return objc::autorelease(std::move(application));
}

void SBApplication::registerClass() {
  StandIn<SBApplication>("SpringBoard", "SBApplication", "NSObject")
      .readonlyProperty<"bundleIdentifier", &SBApplication::bundleIdentifier>()
      .finish();
}

}  // namespace sim
