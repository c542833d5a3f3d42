#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/nib/Decoding.h"

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
void decodeControl(Object control, const NibCoder& coder) {
  if (coder.flag("UIDisabled")) objc::send<void, "setEnabled:">(control, false);
  if (coder.flag("UISelected")) objc::send<void, "setSelected:">(control, true);
  if (coder.flag("UIHighlighted")) objc::send<void, "setHighlighted:">(control, true);
}

void decodeState(Object button, unsigned long state, const UIButtonContent& content) {
  if (content.title) objc::send<void, "setTitle:forState:">(button, content.title.get(), state);
  if (content.image) objc::send<void, "setImage:forState:">(button, content.image.get(), state);
  if (content.titleColor)
    objc::send<void, "setTitleColor:forState:">(button, content.titleColor.get(), state);
}

void decodeButton(Object button, const NibCoder& coder) {
  UIButton::of(button).buttonType = coder.integer("UIButtonType");
  const Object contents = coder.object("UIButtonStatefulContent");
  for (const unsigned long state : {UIControl::normal, UIControl::highlightedState,
                                    UIControl::disabledState, UIControl::selectedState}) {
    const Object content = objc::send<Object, "objectForKey:">(contents, number(long(state)));
    if (content) decodeState(button, state, UIButtonContent::of(content));
  }
  if (const Object font = coder.object("UIFont"))
    objc::send<void, "setFont:">(objc::send<Object, "titleLabel">(button), font);
}

}  // namespace

void addControlDecoding() {
  StandIn<UIButtonContent>("UIKit", "UIButtonContent", "NSObject")
      .partial<"initWithCoder:", &UIButtonContent::initWithCoder>(
          "title, image and title colour alone")
      .readonlyProperty<"title", &UIButtonContent::title>()
      .finish();
  addDecoding<UIControl, &decodeControl>("UIControl", "no alignment of the content");
  addDecoding<UIButton, &decodeButton>("UIButton", "no insets, no configurations");
}

}  // namespace sim
