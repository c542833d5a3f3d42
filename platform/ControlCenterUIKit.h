// ControlCenterUIKit (private): glyph packages of Control Center's buttons.
#pragma once

#include "platform/Foundation.h"

struct NSBundle : objc::Object {
  using Object::Object;
};

struct CCUICAPackageDescription : objc::Object {
  using Object::Object;
};
