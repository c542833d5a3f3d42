#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/nib/NibCoder.h"
#include "simulator/uikit/views/UIStackView.h"

namespace sim {
namespace {

using objc::Object;

Object initWithCoder(Object self, Object source) {
  const Object made =
      objc::sendSuper<Object, "initWithCoder:">(self.get(), UIStackView::cls(), source);
  if (!made) return nullptr;
  const NibCoder coder(source);
  objc::send<void, "setAxis:">(made, coder.integer("UIStackViewAxis"));
  objc::send<void, "setDistribution:">(made, coder.integer("UIStackViewDistribution"));
  objc::send<void, "setAlignment:">(made, coder.integer("UIStackViewAlignment"));
  objc::send<void, "setSpacing:">(made, coder.number("UIStackViewSpacing"));
  objc::send<void, "setLayoutMarginsRelativeArrangement:">(
      made, coder.flag("UIStackViewLayoutMarginsRelative"));
  for (const Object each : coder.elements("UIStackViewArrangedSubviews"))
    objc::send<void, "addArrangedSubview:">(made, each);
  return made;
}

}  // namespace

void addStackViewDecoding() {
  addInitWithCoder<&initWithCoder>("UIStackView", "no arrangement by baselines");
}

}  // namespace sim
