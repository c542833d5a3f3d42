// The resource bundle that is installed beside the library: images, texts and layouts.
#pragma once

#include "objc/Registration.h"
#include "platform/UIKit.h"

// Main thread. Nothing is kept: every call reads the bundle again.
struct BundleHelper : NSObject {
  using NSObject::NSObject;

  // A new object at every call; nil when the bundle is not installed.
  static NSBundle getBundle() { return objc::send<NSBundle, "getBundle">(cls()); }
  // A template image, drawn in the tint colour of the view that shows it. nil when it is missing.
  static UIImage getImageWithName(NSString name) {
    return objc::send<UIImage, "getImageWithName:">(cls(), name);
  }
  // In the user's language; the key itself when there is no translation, or no bundle.
  static NSString getLocalizedStringFor(NSString key) {
    return objc::send<NSString, "getLocalizedStringFor:">(cls(), key);
  }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
