// An application as the home screen knows it.
#pragma once

#include <string_view>

#include "objc/Class.h"

namespace sim {

struct SBApplication : objc::Implementation<SBApplication> {
  objc::Strong<objc::Object> bundleIdentifier;  // NSString

  // Autoreleased; nil when the class is missing.
  static objc::Object withBundleIdentifier(std::string_view identifier);

  static void registerClass();
};

}  // namespace sim
