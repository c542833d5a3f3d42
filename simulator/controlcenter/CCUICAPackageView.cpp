#include "simulator/controlcenter/CCUICAPackageView.h"

#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/CAPackage.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/animation/Animation.h"

namespace sim {

using objc::Object;
using objc::send;

// A glyph lies in a button, which is to get the touches.
Object CCUICAPackageView::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  send<void, "setUserInteractionEnabled:">(made, false);
  contentView =
      objc::adopt(send<Object, "initWithFrame:">(objc_alloc(objc_getClass("UIView")), CGRect()));
  send<void, "addSubview:">(made, contentView.get());
  return made;
}

void CCUICAPackageView::setPackage(Object given) {
  if (package.get() == given) return;
  if (const CAPackage* before = stateOf<CAPackage>(package))
    send<void, "removeFromSuperlayer">(before->rootLayer.get());
  package = objc::retain(given);
  stateController = {};
  const CAPackage* shown = stateOf<CAPackage>(given);
  const Object root = shown != nullptr ? shown->rootLayer.get() : Object();
  send<void, "setGeometryFlipped:">(root, shown != nullptr && shown->geometryFlipped);
  const CGSize size = send<CGRect, "bounds">(root).size;
  send<void, "setBounds:">(contentView.get(), CGRect{{}, size});
  send<void, "setPosition:">(root, CGPoint{size.width / 2, size.height / 2});
  if (root) send<void, "addSublayer:">(send<Object, "layer">(contentView.get()), root);
  stateController = objc::adopt(
      send<Object, "initWithLayer:">(objc_alloc(objc_getClass("CAStateController")), root));
  send<void, "setInitialStatesOfLayer:">(stateController.get(), root);
  send<void, "setNeedsLayout">(self());
}

void CCUICAPackageView::setPackageDescription(Object description) {
  packageDescription = objc::retain(description);
  send<void, "setPackage:">(
      self(), send<Object, "ccuiPackageFromDescription:">(objc_getClass("CAPackage"), description));
}

void CCUICAPackageView::setScale(double factor) {
  scale = factor;
  send<void, "setNeedsLayout">(self());
}

void CCUICAPackageView::setStateName(Object name) {
  const CAPackage* shown = stateOf<CAPackage>(package);
  const Object root = shown != nullptr ? shown->rootLayer.get() : Object();
  const Object state = send<Object, "stateWithName:">(root, name);
  const float speed = animationsAreEnabled() ? 1 : 0;
  send<void, "setState:ofLayer:transitionSpeed:">(stateController.get(), state, root, speed);
}

void CCUICAPackageView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = send<CGRect, "bounds">(self()).size;
  send<void, "setCenter:">(contentView.get(), CGPoint{room.width / 2, room.height / 2});
  send<void, "setTransform:">(contentView.get(), CGAffineTransform{scale, 0, 0, scale, 0, 0});
}

void CCUICAPackageView::registerClass() {
  StandIn<CCUICAPackageView>("ControlCenterUIKit", "CCUICAPackageView", "UIView")
      .method<"initWithFrame:", &CCUICAPackageView::initWithFrame>()
      .method<"setPackage:", &CCUICAPackageView::setPackage>()
      .property<"package", &CCUICAPackageView::package>()
      .method<"setPackageDescription:", &CCUICAPackageView::setPackageDescription>()
      .property<"packageDescription", &CCUICAPackageView::packageDescription>()
      .method<"setScale:", &CCUICAPackageView::setScale>()
      .property<"scale", &CCUICAPackageView::scale>()
      .partial<"setStateName:", &CCUICAPackageView::setStateName>("the change is complete at once")
      .method<"layoutSubviews", &CCUICAPackageView::layoutSubviews>()
      .finish();
}

}  // namespace sim
