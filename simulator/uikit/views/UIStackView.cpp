#include "simulator/uikit/views/UIStackView.h"

#include <algorithm>
#include <limits>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

template <auto member>
void setAndLayOut(Object self,
                  std::remove_reference_t<decltype(UIStackView::of(self).*member)> value) {
  UIStackView::of(self).*member = value;
  constraintsChanged(self);
}

}  // namespace

Object UIStackView::initWithArrangedSubviews(Object views) {
  const Object made = objc::send<Object, "initWithFrame:">(self(), CGRect());
  const auto count = objc::send<unsigned long, "count">(views);
  for (unsigned long i = 0; made && i < count; ++i)
    addArranged(objc::send<Object, "objectAtIndex:">(views, i));
  return made;
}

Object UIStackView::arrangedSubviews() const {
  return array(std::vector<Object>(arranged.begin(), arranged.end()));
}

void UIStackView::insertArranged(Object view, unsigned long index) {
  if (!view) return;
  if (!isA<UIView>(view)) raiseWrongClass("addArrangedSubview:", view, "UIView");
  const auto kept = objc::retain(view);
  std::erase_if(arranged, [view](const auto& each) { return each.get() == view; });
  arranged.insert(arranged.begin() + long(std::min<std::size_t>(index, arranged.size())), kept);
  if (UIView::of(view).parent.get() != self()) objc::send<void, "addSubview:">(self(), view);
  objc::send<void, "setTranslatesAutoresizingMaskIntoConstraints:">(view, false);
  constraintsChanged(Object(self()));
}

void UIStackView::removeArranged(Object view) {
  std::erase_if(arranged, [view](const auto& each) { return each.get() == view; });
  constraintsChanged(Object(self()));
}

std::vector<Object> UIStackView::visible() const {
  std::vector<Object> views;
  for (const auto& each : arranged)
    if (!UIView::of(each.get()).isHidden()) views.push_back(each);
  return views;
}

double UIStackView::spacingAfter(Object view) const {
  for (const auto& [each, points] : customSpacings)
    if (each.load().get() == view) return points;
  return spacing;
}

// The greatest number stands for the stack's own.
void UIStackView::setCustomSpacing(double points, Object view) {
  std::erase_if(customSpacings, [view](const auto& each) {
    const auto kept = each.first.load();
    return !kept || kept == view;
  });
  if (points != std::numeric_limits<float>::max())
    customSpacings.emplace_back(objc::weak(view), points);
  constraintsChanged(Object(self()));
}

void UIStackView::willRemoveSubview(Object view) {
  super<void, "willRemoveSubview:">(view);
  removeArranged(view);
}

void UIStackView::registerClass() {
  StandIn<UIStackView>("UIKit", "UIStackView", "UIView")
      .method<"initWithArrangedSubviews:", &UIStackView::initWithArrangedSubviews>()
      .method<"arrangedSubviews", &UIStackView::arrangedSubviews>()
      .method<"addArrangedSubview:", &UIStackView::addArranged>()
      .method<"insertArrangedSubview:atIndex:", &UIStackView::insertArranged>()
      .method<"removeArrangedSubview:", &UIStackView::removeArranged>()
      .method<"willRemoveSubview:", &UIStackView::willRemoveSubview>()
      .readonlyProperty<"axis", &UIStackView::axis>()
      .method<"setAxis:", &setAndLayOut<&UIStackView::axis>>()
      .readonlyProperty<"distribution", &UIStackView::distribution>()
      .method<"setDistribution:", &setAndLayOut<&UIStackView::distribution>>()
      .readonlyProperty<"alignment", &UIStackView::alignment>()
      .method<"setAlignment:", &setAndLayOut<&UIStackView::alignment>>()
      .readonlyProperty<"spacing", &UIStackView::spacing>()
      .method<"setSpacing:", &setAndLayOut<&UIStackView::spacing>>()
      .method<"customSpacingAfterView:", &UIStackView::spacingAfter>()
      .method<"setCustomSpacing:afterView:", &UIStackView::setCustomSpacing>()
      .readonlyProperty<"isLayoutMarginsRelativeArrangement", &UIStackView::isArrangedInMargins>()
      .method<"setLayoutMarginsRelativeArrangement:",
              &setAndLayOut<&UIStackView::isArrangedInMargins>>()
      .finish();
}

}  // namespace sim
