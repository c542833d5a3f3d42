#include "simulator/uikit/UIView.h"

#include <algorithm>

#include "simulator/StandIn.h"
#include "simulator/foundation/Values.h"

namespace sim {

UIView::~UIView() {
  for (const auto& child : children) of(child.get()).parent = nullptr;
}

objc::Object UIView::init() {
  return objc::send<objc::Object, "initWithFrame:">(self(), CGRect());
}

objc::Object UIView::initWithFrame(CGRect frame) {
  viewFrame = frame;
  return super<objc::Object, "init">();
}

objc::Object UIView::subviews() {
  return array(std::vector<objc::Object>(children.begin(), children.end()));
}

void UIView::addSubview(objc::Object view) {
  if (!view) return;
  const auto kept = objc::retain(view);  // the parent it has may own it alone
  objc::send<void, "removeFromSuperview">(view);
  children.push_back(kept);
  of(view).parent = objc::Object(self());
}

void UIView::removeFromSuperview() {
  if (!parent) return;
  auto& siblings = of(std::exchange(parent, nullptr)).children;
  const auto isThis = [this](const auto& each) { return each.get().get() == self(); };
  const auto found = std::find_if(siblings.begin(), siblings.end(), isThis);
  const auto last = std::move(*found);  // this view may end with the function
  siblings.erase(found);
}

void UIView::registerClass() {
  StandIn<UIView>("UIKit", "UIView", "UIResponder")
      .method<"init", &UIView::init>()
      .method<"initWithFrame:", &UIView::initWithFrame>()
      .method<"frame", &UIView::frame>()
      .method<"setFrame:", &UIView::setFrame>()
      .partial<"bounds", &UIView::bounds>("always begins at the origin")
      .property<"hidden", &UIView::hidden>()
      .readonlyProperty<"isHidden", &UIView::hidden>()
      .readonlyProperty<"superview", &UIView::parent>()
      .method<"subviews", &UIView::subviews>()
      .method<"addSubview:", &UIView::addSubview>()
      .method<"removeFromSuperview", &UIView::removeFromSuperview>()
      .partial<"layoutSubviews", &UIView::layoutSubviews>("no constraints")
      .finish();
}

}  // namespace sim
