// Target and action: the messages that controls send.
#pragma once

#include "objc/Object.h"

namespace sim {

// With the sender and the event, as far as the action has arguments. nil receives nothing; an
// unknown message ends the program like any other.
void performAction(SEL action, objc::Object target, objc::Object sender, objc::Object event);

// The first that knows the action, from the sender up the responder chain; nil for none.
objc::Object firstResponderTo(SEL action, objc::Object sender);

}  // namespace sim
