#include "tweak/panel/PageLayout.h"

#include "tweak/support/BundleHelper.h"

objc::Strong<UIView> pageFromLayout(NSString name, id initialised) {
  // Whoever sent init gave up its reference to this object and gets one to what init returns.
  const auto owner = objc::adopt(objc::Object(initialised));
  const auto views = BundleHelper::getBundle().loadNibNamed(name, owner);
  return objc::retain(objc::as<UIView>(views.firstObject()));
}
