// Control Center: which animated glyph a button shows.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CCUICAPackageDescription : objc::Implementation<CCUICAPackageDescription> {
  objc::Strong<objc::Object> packageName;  // NSString
  objc::Strong<objc::Object> bundle;       // NSBundle
  bool flipsForRightToLeftLayoutDirection = false;

  objc::Object initWithPackageName_inBundle(objc::Object name, objc::Object where);
  objc::Object packageURL() const;  // NSURL; nil when the bundle has no such package

  static void registerClass();
};

}  // namespace sim
