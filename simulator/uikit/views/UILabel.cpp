#include "simulator/uikit/views/UILabel.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "simulator/coretext/Typesetter.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/resources/UIColor.h"
#include "simulator/uikit/resources/UIFont.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

constexpr double unlimited = std::numeric_limits<double>::max();

Object blackColor() {
  return objc::send<Object, "blackColor">(UIColor::cls());
}

double wholePixels(double points) {
  return std::ceil(points * UIScreen::mainScale) / UIScreen::mainScale;
}

void sizeMayHaveChanged(id self) {
  objc::send<void, "invalidateIntrinsicContentSize">(self);
}

// A screen reader is told the text.
Object spokenText(Object self) {
  return accessibilityLabelOr(self.get(), UILabel::of(self).text);
}
unsigned long textTraits(Object self) {
  return accessibilityTraitsOr(self.get(), ViewAccessibility::staticText);
}
bool textIsElement(Object self) {
  return isAccessibilityElementOr(self.get(), true);
}

}  // namespace

Object UILabel::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  UIView::of(made).userInteractionEnabled = false;
  textColor = objc::retain(blackColor());
  font = objc::retain(UIFont::system(17));
  return made;
}

void UILabel::setText(Object shown) {
  text = objc::adopt(objc::send<Object, "copy">(shown));
  sizeMayHaveChanged(self());
}

void UILabel::setTextColor(Object color) {
  textColor = objc::retain(color ? color : blackColor());
}

void UILabel::setFont(Object used) {
  font = objc::retain(used ? used : UIFont::system(17));
  sizeMayHaveChanged(self());
}

void UILabel::setNumberOfLines(long lines) {
  if (numberOfLines == lines) return;
  numberOfLines = lines;
  sizeMayHaveChanged(self());
}

FontStyle UILabel::fontStyle() const {
  const UIFont* its = stateOf<UIFont>(font.get());
  return its != nullptr ? its->style : FontStyle();
}

CGSize UILabel::sizeThatFits(CGSize size) const {
  const FontStyle style = fontStyle();
  const double room = size.width > 0 ? size.width : unlimited;
  const auto lines =
      typeset(sim::text(text), style, numberOfLines == 1 ? unlimited : room, numberOfLines);
  double width = 0;
  for (const TextLine& line : lines) width = std::max(width, line.width);
  return {wholePixels(std::min(width, room)),
          wholePixels(double(lines.size()) * style.lineHeight())};
}

CGSize UILabel::intrinsicContentSize() const {
  return sizeThatFits({unlimited, unlimited});
}

void UILabel::registerClass() {
  constexpr const char* widths = "the widths of a similar face";
  StandIn<UILabel>("UIKit", "UILabel", "UIView")
      .method<"initWithFrame:", &UILabel::initWithFrame>()
      .readonlyProperty<"text", &UILabel::text>()
      .method<"setText:", &UILabel::setText>()
      .readonlyProperty<"textColor", &UILabel::textColor>()
      .method<"setTextColor:", &UILabel::setTextColor>()
      .readonlyProperty<"font", &UILabel::font>()
      .method<"setFont:", &UILabel::setFont>()
      .property<"textAlignment", &UILabel::textAlignment>()
      .readonlyProperty<"numberOfLines", &UILabel::numberOfLines>()
      .method<"setNumberOfLines:", &UILabel::setNumberOfLines>()
      .property<"adjustsFontSizeToFitWidth", &UILabel::adjustsFontSizeToFitWidth>()
      .property<"minimumScaleFactor", &UILabel::minimumScaleFactor>()
      .method<"accessibilityLabel", &spokenText>()
      .method<"accessibilityTraits", &textTraits>()
      .method<"isAccessibilityElement", &textIsElement>()
      .partial<"sizeThatFits:", &UILabel::sizeThatFits>(widths)
      .partial<"intrinsicContentSize", &UILabel::intrinsicContentSize>(widths)
      .finish();
}

}  // namespace sim
