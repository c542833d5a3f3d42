#include "tweak/support/BundleHelper.h"

#include "objc/Class.h"

namespace {

struct BundleHelperImplementation : objc::Implementation<BundleHelperImplementation> {
  static NSBundle getBundle() {
    return NSBundle::bundleWithPath(
        "/var/jb/Library/Application Support/Dozewell2Bundle.bundle"_ns);
  }

  static UIImage getImageWithName(NSString name) {
    const auto path = getBundle().pathForResource(name, "png"_ns);
    return UIImage::imageWithContentsOfFile(path).imageWithRenderingMode(
        UIImage::RenderingMode::alwaysTemplate);
  }

  static NSString getLocalizedStringFor(NSString key) {
    const auto bundle = getBundle();
    // A message to nil would give no text at all where the key is promised.
    if (!bundle) return key;
    return bundle.localizedStringForKey(key, key, nullptr);
  }
};

}  // namespace

Class BundleHelper::cls() {
  return BundleHelperImplementation::cls();
}

objc::Registration BundleHelper::registerClass() {
  using Self = BundleHelperImplementation;
  return objc::ClassBuilder<Self>("BundleHelper", "NSObject")
      .classMethod<"getBundle", &Self::getBundle>()
      .classMethod<"getImageWithName:", &Self::getImageWithName>()
      .classMethod<"getLocalizedStringFor:", &Self::getLocalizedStringFor>()
      .finish();
}
