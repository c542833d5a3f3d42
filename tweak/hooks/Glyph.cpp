#include "tweak/hooks/Glyph.h"

#include "tweak/support/BundleHelper.h"

id allSublayersFromLayer(id layer) {
  const auto layers = NSMutableArray::array();
  if (layer == nullptr) return layers.get();
  layers.addObject(objc::Object(layer));
  const auto sublayers = CALayer(layer).sublayers();
  for (unsigned long i = 0; i < sublayers.count(); ++i)
    layers.addObjectsFromArray(NSArray(allSublayersFromLayer(sublayers.objectAtIndex(i).get())));
  return layers.get();
}

id getDndCAPackageView(double size) {
  constexpr double scale = 0.7;
  const auto description =
      CCUICAPackageDescription::make("DozewellButtonDark"_ns, BundleHelper::getBundle());
  const auto package = description->package();
  auto view = CCUICAPackageView::make(rect(0, 0, size, size));
  view->setPackage(package);
  view->setScale(scale);
  return objc::autorelease(std::move(view)).get();
}
