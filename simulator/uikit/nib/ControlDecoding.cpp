#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/nib/NibCoder.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

// What a button shows in one state.
struct UIButtonContent : objc::Implementation<UIButtonContent> {
  Strong<Object> title;       // NSString
  Strong<Object> image;       // UIImage
  Strong<Object> titleColor;  // UIColor

  Object initWithCoder(Object source) {
    const NibCoder coder(source);
    title = objc::retain(coder.object("UITitle"));
    image = objc::retain(coder.object("UIImage"));
    titleColor = objc::retain(coder.object("UITitleColor"));
    return super<Object, "init">();
  }
};

// Messages go out for what is set alone: subclasses answer them with animations and sounds.
Object initControl(Object self, Object source) {
  const Object made =
      objc::sendSuper<Object, "initWithCoder:">(self.get(), UIControl::cls(), source);
  if (!made) return nullptr;
  const NibCoder coder(source);
  if (coder.flag("UIDisabled")) objc::send<void, "setEnabled:">(made, false);
  if (coder.flag("UISelected")) objc::send<void, "setSelected:">(made, true);
  if (coder.flag("UIHighlighted")) objc::send<void, "setHighlighted:">(made, true);
  return made;
}

void decodeState(Object button, unsigned long state, const UIButtonContent& content) {
  if (content.title) objc::send<void, "setTitle:forState:">(button, content.title.get(), state);
  if (content.image) objc::send<void, "setImage:forState:">(button, content.image.get(), state);
  if (content.titleColor)
    objc::send<void, "setTitleColor:forState:">(button, content.titleColor.get(), state);
}

Object initButton(Object self, Object source) {
  const Object made =
      objc::sendSuper<Object, "initWithCoder:">(self.get(), UIButton::cls(), source);
  if (!made) return nullptr;
  const NibCoder coder(source);
  UIButton::of(made).buttonType = coder.integer("UIButtonType");
  const Object contents = coder.object("UIButtonStatefulContent");
  for (const unsigned long state : {UIControl::normal, UIControl::highlightedState,
                                    UIControl::disabledState, UIControl::selectedState}) {
    const Object content = objc::send<Object, "objectForKey:">(contents, number(long(state)));
    if (content) decodeState(made, state, UIButtonContent::of(content));
  }
  if (const Object font = coder.object("UIFont"))
    objc::send<void, "setFont:">(objc::send<Object, "titleLabel">(made), font);
  return made;
}

}  // namespace

void addControlDecoding() {
  StandIn<UIButtonContent>("UIKit", "UIButtonContent", "NSObject")
      .partial<"initWithCoder:", &UIButtonContent::initWithCoder>(
          "title, image and title colour alone")
      .readonlyProperty<"title", &UIButtonContent::title>()
      .finish();
  addInitWithCoder<&initControl>("UIControl", "no alignment of the content");
  addInitWithCoder<&initButton>("UIButton", "no insets, no configurations");
}

}  // namespace sim
