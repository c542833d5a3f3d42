// Control Center: which animated glyph a button shows.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CCUICAPackageDescription : objc::Implementation<CCUICAPackageDescription> {
  objc::Strong<objc::Object> packageName;  // NSString
  objc::Strong<objc::Object> bundle;       // NSBundle

  objc::Object initWithPackageName_inBundle(objc::Object name, objc::Object where);

  static void registerClass();
};

}  // namespace sim
