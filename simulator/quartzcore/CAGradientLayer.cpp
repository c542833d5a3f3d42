#include "simulator/quartzcore/CAGradientLayer.h"

#include "simulator/foundation/Kind.h"
#include "simulator/standin/StandIn.h"

namespace sim {

using objc::Object;

std::vector<CAGradientLayer::Stop> CAGradientLayer::stops() const {
  const auto count = objc::send<unsigned long, "count">(colors);
  const auto placed = objc::send<unsigned long, "count">(locations);
  std::vector<Stop> stops;
  for (unsigned long i = 0; i < count; ++i) {
    const Object color = objc::send<Object, "objectAtIndex:">(colors, i);
    const double evenly = count > 1 ? double(i) / double(count - 1) : 0;
    const double at =
        placed == count
            ? objc::send<double, "doubleValue">(objc::send<Object, "objectAtIndex:">(locations, i))
            : evenly;
    if (const CGColor* state = stateOf<CGColor>(color)) stops.push_back({at, state->color});
  }
  return stops;
}

void CAGradientLayer::registerClass() {
  StandIn<CAGradientLayer>("QuartzCore", "CAGradientLayer", "CALayer")
      .property<"colors", &CAGradientLayer::colors>()
      .property<"locations", &CAGradientLayer::locations>()
      .property<"startPoint", &CAGradientLayer::startPoint>()
      .property<"endPoint", &CAGradientLayer::endPoint>()
      .finish();
}

}  // namespace sim
