#include <string>
#include <string_view>

#include "simulator/machine/NumberReader.h"
#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

constexpr double opaqueAlpha = 1;

void decodeAppearance(Object view, const NibCoder& coder) {
  objc::send<void, "setBackgroundColor:">(view, coder.object("UIBackgroundColor"));
  if (coder.has("UITintColor"))
    objc::send<void, "setTintColor:">(view, coder.object("UITintColor"));
  objc::send<void, "setHidden:">(view, coder.flag("UIHidden"));
  objc::send<void, "setAlpha:">(view, coder.has("UIAlpha") ? coder.number("UIAlpha") : opaqueAlpha);
  objc::send<void, "setClipsToBounds:">(view, coder.flag("UIClipsToBounds"));
  objc::send<void, "setContentMode:">(view, coder.integer("UIContentMode"));
  objc::send<void, "setSemanticContentAttribute:">(view,
                                                   coder.integer("UIViewSemanticContentAttribute"));
}

void decodeBehaviour(Object view, const NibCoder& coder) {
  objc::send<void, "setTag:">(view, coder.integer("UITag"));
  objc::send<void, "setUserInteractionEnabled:">(view, !coder.flag("UIUserInteractionDisabled"));
  objc::send<void, "setAutoresizesSubviews:">(view, coder.flag("UIAutoresizeSubviews"));
  objc::send<void, "setAutoresizingMask:">(
      view, static_cast<unsigned long>(coder.integer("UIAutoresizingMask")));
}

// "{251, 250}": of the horizontal axis, then of the vertical one.
template <objc::FixedString Setter>
void decodePriorities(Object view, Object pair) {
  constexpr std::string_view opening = "{", between = ", ";
  const std::string written = text(pair);
  if (!written.starts_with(opening)) return;
  std::string_view numbers = std::string_view(written).substr(opening.size());
  const auto horizontal = takeNumber<float>(numbers);
  if (!horizontal || !numbers.starts_with(between)) return;
  numbers.remove_prefix(between.size());
  const auto vertical = takeNumber<float>(numbers);
  if (!vertical) return;
  objc::send<void, Setter>(view, *horizontal, 0L);
  objc::send<void, Setter>(view, *vertical, 1L);
}

void decodeLayout(Object view, const NibCoder& coder) {
  objc::send<void, "setTranslatesAutoresizingMaskIntoConstraints:">(
      view, !coder.flag("UIViewDoesNotTranslateAutoresizingMaskIntoConstraints"));
  decodePriorities<"setContentHuggingPriority:forAxis:">(
      view, coder.object("UIViewContentHuggingPriority"));
  decodePriorities<"setContentCompressionResistancePriority:forAxis:">(
      view, coder.object("UIViewContentCompressionResistancePriority"));
  if (coder.has("UIViewLayoutMargins"))
    objc::send<void, "setLayoutMargins:">(view, coder.insets("UIViewLayoutMargins"));
  for (const Object each : coder.elements("UIViewAutolayoutConstraints"))
    objc::send<void, "addConstraint:">(view, each);
}

// Not through initWithFrame:, which classes of one's own override for views made in code. The
// state of an absent key is not always the one that a new view has.
Object initWithCoder(Object self, Object source) {
  const Object made = objc::sendSuper<Object, "init">(self.get(), UIView::cls());
  if (!made) return nullptr;
  const NibCoder coder(source);
  objc::send<void, "setBounds:">(made, coder.rect("UIBounds"));
  objc::send<void, "setCenter:">(made, coder.point("UICenter"));
  for (const Object each : coder.elements("UISubviews"))
    objc::send<void, "addSubview:">(made, each);
  decodeAppearance(made, coder);
  decodeBehaviour(made, coder);
  decodeLayout(made, coder);
  return made;
}

}  // namespace

void addViewDecoding() {
  addInitWithCoder<&initWithCoder>("UIView", "no gesture recognisers, no layout guides");
}

}  // namespace sim
