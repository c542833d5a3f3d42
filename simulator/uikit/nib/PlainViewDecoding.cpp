#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/views/UIImageView.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIStackView.h"

namespace sim {
namespace {

using objc::Object;

void decodeImageView(Object view, const NibCoder& coder) {
  objc::send<void, "setImage:">(view, coder.object("UIImage"));
}

void decodeLabel(Object label, const NibCoder& coder) {
  objc::send<void, "setFont:">(label, coder.object("UIFont"));
  objc::send<void, "setTextColor:">(label, coder.object("UITextColor"));
  objc::send<void, "setTextAlignment:">(label, coder.integer("UITextAlignment"));
  objc::send<void, "setNumberOfLines:">(
      label, coder.has("UINumberOfLines") ? coder.integer("UINumberOfLines") : 1L);
  objc::send<void, "setAdjustsFontSizeToFitWidth:">(label, coder.flag("UIAdjustsFontSizeToFit"));
  objc::send<void, "setMinimumScaleFactor:">(label, coder.number("UIMinimumScaleFactor"));
  objc::send<void, "setText:">(label, coder.object("UIText"));
}

void decodeStackView(Object stack, const NibCoder& coder) {
  objc::send<void, "setAxis:">(stack, coder.integer("UIStackViewAxis"));
  objc::send<void, "setDistribution:">(stack, coder.integer("UIStackViewDistribution"));
  objc::send<void, "setAlignment:">(stack, coder.integer("UIStackViewAlignment"));
  objc::send<void, "setSpacing:">(stack, coder.number("UIStackViewSpacing"));
  objc::send<void, "setLayoutMarginsRelativeArrangement:">(
      stack, coder.flag("UIStackViewLayoutMarginsRelative"));
  for (const Object each : coder.elements("UIStackViewArrangedSubviews"))
    objc::send<void, "addArrangedSubview:">(stack, each);
}

}  // namespace

void addPlainViewDecoding() {
  addDecoding<UIImageView, &decodeImageView>("UIImageView", "no highlighted image");
  addDecoding<UILabel, &decodeLabel>("UILabel", "no shadow, no highlighted colour");
  addDecoding<UIStackView, &decodeStackView>("UIStackView", "no arrangement by baselines");
}

}  // namespace sim
