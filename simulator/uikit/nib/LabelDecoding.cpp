#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/nib/NibCoder.h"
#include "simulator/uikit/views/UILabel.h"

namespace sim {
namespace {

using objc::Object;

Object initWithCoder(Object self, Object source) {
  const Object made = objc::sendSuper<Object, "initWithCoder:">(self.get(), UILabel::cls(), source);
  if (!made) return nullptr;
  const NibCoder coder(source);
  objc::send<void, "setFont:">(made, coder.object("UIFont"));
  objc::send<void, "setTextColor:">(made, coder.object("UITextColor"));
  objc::send<void, "setTextAlignment:">(made, coder.integer("UITextAlignment"));
  objc::send<void, "setNumberOfLines:">(
      made, coder.has("UINumberOfLines") ? coder.integer("UINumberOfLines") : 1L);
  objc::send<void, "setAdjustsFontSizeToFitWidth:">(made, coder.flag("UIAdjustsFontSizeToFit"));
  objc::send<void, "setMinimumScaleFactor:">(made, coder.number("UIMinimumScaleFactor"));
  objc::send<void, "setText:">(made, coder.object("UIText"));
  return made;
}

}  // namespace

void addLabelDecoding() {
  addInitWithCoder<&initWithCoder>("UILabel", "no shadow, no highlighted colour");
}

}  // namespace sim
