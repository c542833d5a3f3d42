// Every function of the host's that takes a block moves the lambda into it.
#include <memory>

#include "platform/Dispatch.h"
#include "platform/MediaRemote.h"
#include "platform/UIKit.h"

// What would be copied somewhere does not compile.
auto moveOnly() {
  return [number = std::make_unique<long>(42)] { *number += 1; };
}

void run(UIView view) {
  dispatch::onMain(moveOnly());
  dispatch::onMainAfter(1, moveOnly());
  MediaRemote::getNowPlayingInfo([number = std::make_unique<long>(42)](NSDictionary) {});
  NSTimer::scheduledTimer(1, true, moveOnly());
  UIAlertAction::make("title"_ns, moveOnly());
  UIKit::animate(1, moveOnly());
  UIKit::animate(1, moveOnly(), UIKit::completion(moveOnly()));
  UIKit::animate(1, 0, UIKit::allowUserInteraction, moveOnly(), UIKit::completion(moveOnly()));
  UIKit::animateSpring(1, 1, 1, UIKit::allowUserInteraction, moveOnly());
  UIKit::transition(view, view, 1, UIKit::transitionCrossDissolve, UIKit::completion(moveOnly()));
  UIKit::transition(view, 1, UIKit::transitionCrossDissolve, moveOnly());
}
