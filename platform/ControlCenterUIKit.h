// ControlCenterUIKit (private): glyph packages of Control Center's buttons.
#pragma once

#include "platform/Foundation.h"

struct CCUICAPackageDescription : objc::Object {
  using Object::Object;
};
