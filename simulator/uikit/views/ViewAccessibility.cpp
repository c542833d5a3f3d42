#include "simulator/uikit/views/ViewAccessibility.h"

#include "objc/Message.h"
#include "simulator/uikit/views/ViewMethods.h"

namespace sim {
namespace {

using objc::Object;
using Text = objc::Strong<Object> ViewAccessibility::*;

template <Text text>
Object textGiven(Object self) {
  return UIView::of(self).accessibility.*text;
}

template <Text text>
void giveText(Object self, Object given) {
  UIView::of(self).accessibility.*text = objc::adopt(objc::send<Object, "copy">(given));
}

unsigned long viewTraits(Object self) {
  return accessibilityTraitsOr(self.get(), 0);
}
void setViewTraits(Object self, unsigned long traits) {
  UIView::of(self).accessibility.traits = traits;
}

bool viewIsElement(Object self) {
  return isAccessibilityElementOr(self.get(), false);
}
void setViewIsElement(Object self, bool is) {
  UIView::of(self).accessibility.isElement = is;
}

}  // namespace

Object accessibilityLabelOr(id view, Object otherwise) {
  const auto& given = UIView::of(view).accessibility.label;
  return given ? given.get() : otherwise;
}

Object accessibilityValueOr(id view, Object otherwise) {
  const auto& given = UIView::of(view).accessibility.value;
  return given ? given.get() : otherwise;
}

unsigned long accessibilityTraitsOr(id view, unsigned long otherwise) {
  return UIView::of(view).accessibility.traits.value_or(otherwise);
}

bool isAccessibilityElementOr(id view, bool otherwise) {
  return UIView::of(view).accessibility.isElement.value_or(otherwise);
}

void addAccessibility(StandIn<UIView>& view) {
  using Its = ViewAccessibility;
  view.method<"accessibilityLabel", &textGiven<&Its::label>>()
      .method<"setAccessibilityLabel:", &giveText<&Its::label>>()
      .method<"accessibilityValue", &textGiven<&Its::value>>()
      .method<"setAccessibilityValue:", &giveText<&Its::value>>()
      .method<"accessibilityHint", &textGiven<&Its::hint>>()
      .method<"setAccessibilityHint:", &giveText<&Its::hint>>()
      .method<"accessibilityIdentifier", &textGiven<&Its::identifier>>()
      .method<"setAccessibilityIdentifier:", &giveText<&Its::identifier>>()
      .method<"accessibilityTraits", &viewTraits>()
      .method<"setAccessibilityTraits:", &setViewTraits>()
      .method<"isAccessibilityElement", &viewIsElement>()
      .method<"setIsAccessibilityElement:", &setViewIsElement>();
}

}  // namespace sim
