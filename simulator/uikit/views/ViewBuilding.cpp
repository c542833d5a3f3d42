#include "simulator/uikit/views/ViewBuilding.h"

#include "objc/Block.h"
#include "objc/Message.h"
#include "simulator/uikit/animation/Animation.h"
#include "simulator/uikit/controls/UIControl.h"

namespace sim {

using objc::Object;

objc::Strong<Object> addView(Object parent, const char* className) {
  auto view = objc::adopt(objc::send<Object, "new">(objc_getClass(className)));
  objc::send<void, "addSubview:">(parent, view.get());
  return view;
}

objc::Strong<Object> addLabel(Object parent, const LabelStyle& style) {
  auto label = addView(parent, "UILabel");
  const Class fonts = objc_getClass("UIFont");
  objc::send<void, "setFont:">(
      label.get(), style.isBold ? objc::send<Object, "boldSystemFontOfSize:">(fonts, style.points)
                                : objc::send<Object, "systemFontOfSize:">(fonts, style.points));
  objc::send<void, "setTextColor:">(label.get(), whiteColor(style.alpha));
  objc::send<void, "setTextAlignment:">(label.get(), style.alignment);
  objc::send<void, "setNumberOfLines:">(label.get(), style.lines);
  return label;
}

Object whiteColor(double alpha) {
  return objc::send<Object, "colorWithWhite:alpha:">(objc_getClass("UIColor"), 1.0, alpha);
}
Object blackColor(double alpha) {
  return objc::send<Object, "colorWithWhite:alpha:">(objc_getClass("UIColor"), 0.0, alpha);
}
Object rgbColor(double red, double green, double blue, double alpha) {
  return objc::send<Object, "colorWithRed:green:blue:alpha:">(objc_getClass("UIColor"), red, green,
                                                              blue, alpha);
}

void setFrame(Object view, CGRect frame) {
  objc::send<void, "setFrame:">(view, frame);
}
CGRect frameOf(Object view) {
  return objc::send<CGRect, "frame">(view);
}
CGSize sizeOf(Object view) {
  return objc::send<CGRect, "bounds">(view).size;
}

void fill(Object view, Object color, double cornerRadius) {
  objc::send<void, "setBackgroundColor:">(view, color);
  objc::send<void, "setCornerRadius:">(objc::send<Object, "layer">(view), cornerRadius);
}
void setAlpha(Object view, double alpha) {
  objc::send<void, "setAlpha:">(view, alpha);
}
void setText(Object label, Object text) {
  objc::send<void, "setText:">(label, text);
}
CGSize sizeThatFits(Object view, CGSize room) {
  return objc::send<CGSize, "sizeThatFits:">(view, room);
}

void addTapTarget(Object control, Object target, SEL action) {
  objc::send<void, "addTarget:action:forControlEvents:">(control, target, action,
                                                         UIControl::touchUpInside);
}

void addChildController(Object parent, Object child) {
  objc::send<void, "addChildViewController:">(parent, child);
  objc::send<void, "addSubview:">(objc::send<Object, "view">(parent),
                                  objc::send<Object, "view">(child));
  objc::send<void, "didMoveToParentViewController:">(child, parent);
}

void removeChildController(Object child) {
  objc::send<void, "willMoveToParentViewController:">(child, nullptr);
  objc::send<void, "removeFromSuperview">(objc::send<Object, "viewIfLoaded">(child));
  objc::send<void, "removeFromParentViewController">(child);
}

void changeAnimated(double seconds, const std::function<void()>& changes) {
  const auto run = objc::block<void()>([changes] { changes(); });
  // Whether the host's own animations keep touches away is not known: they do not.
  animateChanges({.duration = seconds, .options = animation::allowUserInteraction}, run.get(),
                 nullptr);
}

}  // namespace sim
