// The resource bundle that is installed beside the library.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct BundleHelper : objc::Implementation<BundleHelper> {
  static NSBundle getBundle();  // made anew at every call; nil when it is not installed
  // A template image, drawn in the tint colour of the view that shows it. nil when it is missing.
  static UIImage getImageWithName(NSString name);
  // In the user's language; the key itself when there is no translation.
  static NSString getLocalizedStringFor(NSString key);

  static Class registerClass();
};
