#include "simulator/mediacontrols/MPMediaControls.h"

#include <utility>

#include "objc/Block.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// The list at the bottom, over what a tap closes.
objc::Strong<Object> makeSheet(Object controls, CGSize screen) {
  constexpr double margin = 24;  // points
  auto sheet = objc::adopt(objc::send<Object, "new">(objc_getClass("UIViewController")));
  const Object view = objc::send<Object, "view">(sheet.get());
  const auto outside = addView(view, "UIControl");
  setFrame(outside, {{0, 0}, screen});
  fill(outside, blackColor(0.4));
  addTapTarget(outside, controls, objc::selector<"dismiss">());
  const auto routes =
      objc::adopt(objc::send<Object, "new">(objc_getClass("MRURoutingViewController")));
  addChildController(sheet, routes);
  const Object list = objc::send<Object, "view">(routes.get());
  const double height =
      objc::send<CGSize, "preferredContentSize">(routes.get()).height + 2 * margin;
  setFrame(list, {{0, screen.height - height}, {screen.width, height}});
  fill(list, rgbColor(0.11, 0.11, 0.12), margin);
  return sheet;
}

}  // namespace

void MPMediaControls::present() {
  const Object window = objc::send<Object, "window">(sourceView.get());
  if (sheet || !window) return;
  sheet = makeSheet(Object(self()), sizeOf(window));
  const Object owner = objc::send<Object, "_viewControllerForAncestor">(sourceView.get());
  objc::send<void, "presentViewController:animated:completion:">(owner, sheet.get(), true,
                                                                 objc::Block<void()>());
}

void MPMediaControls::dismiss() {
  const auto gone = std::exchange(sheet, {});
  objc::send<void, "dismissViewControllerAnimated:completion:">(gone.get(), true,
                                                                objc::Block<void()>());
}

void MPMediaControls::registerClass() {
  StandIn<MPMediaControls>("MediaPlayer", "MPMediaControls", "NSObject")
      .property<"sourceView", &MPMediaControls::sourceView>()
      .partial<"present", &MPMediaControls::present>(
          "a sheet of the home screen's, with the simulator's own list")
      .method<"dismiss", &MPMediaControls::dismiss>()
      .finish();
}

}  // namespace sim
