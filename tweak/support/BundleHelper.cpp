#include "tweak/support/BundleHelper.h"

NSBundle BundleHelper::getBundle() {
  return NSBundle::bundleWithPath("/var/jb/Library/Application Support/Dozewell2Bundle.bundle"_ns);
}

UIImage BundleHelper::getImageWithName(NSString name) {
  const auto path = getBundle().pathForResource(name, "png"_ns);
  return UIImage::imageWithContentsOfFile(path).imageWithRenderingMode(
      UIImage::RenderingMode::alwaysTemplate);
}

NSString BundleHelper::getLocalizedStringFor(NSString key) {
  const auto bundle = getBundle();
  if (!bundle) return key;
  return bundle.localizedStringForKey(key, key, nullptr);
}

Class BundleHelper::registerClass() {
  return objc::ClassBuilder<BundleHelper>("BundleHelper", "NSObject")
      .classMethod<"getBundle", &BundleHelper::getBundle>()
      .classMethod<"getImageWithName:", &BundleHelper::getImageWithName>()
      .classMethod<"getLocalizedStringFor:", &BundleHelper::getLocalizedStringFor>()
      .finish();
}
