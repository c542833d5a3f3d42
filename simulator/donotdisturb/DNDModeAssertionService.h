// DoNotDisturb: switches modes on for one client.
#pragma once

#include "objc/Class.h"

namespace sim {

struct DNDModeAssertionService : objc::Implementation<DNDModeAssertionService> {
  objc::Strong<objc::Object> clientIdentifier;  // NSString

  static objc::Object serviceForClientIdentifier(objc::Object client);

  // The assertion, autoreleased; nil when it is refused. `error` may be null.
  objc::Object takeModeAssertionWithDetails_error(objc::Object details, id* error);
  // Ends what Control Center's toggle, or whoever takes its name, has begun.
  void invalidateAllActiveModeAssertions(id* error);

  static void registerClass();
};

}  // namespace sim
