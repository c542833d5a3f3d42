#include "simulator/coversheet/CSProminentSubtitleDateView.h"

#include <utility>

#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Element = CSProminentTextElementView;

Object Element::initWithFrame(CGRect frame) {
  constexpr long centred = 1;
  const auto made = super<Object, "initWithFrame:">(frame);
  textLabel = addLabel(made, {.points = 17, .alignment = centred});
  return made;
}

void Element::setOverrideString(Object shown) {
  overrideString = objc::adopt(objc::send<Object, "copy">(shown));
  show();
}

void Element::setElementText(Object shown) {
  text = objc::retain(shown);
  show();
}

void Element::show() {
  constexpr double height = 21;  // points
  const Object shown = overrideString ? overrideString.get() : text.get();
  const auto before = objc::retain(objc::send<Object, "text">(textLabel.get()));
  setText(textLabel, shown);
  const double width =
      objc::send<CGSize, "sizeThatFits:">(textLabel.get(), CGSize{1e4, height}).width;
  setFrame(textLabel, {{0, 0}, {width, height}});
  const auto frame = objc::send<CGRect, "frame">(self());
  objc::send<void, "setFrame:">(self(), CGRect{frame.origin, {width, height}});
  if (shown && !objc::send<bool, "isEqual:">(shown, before.get()))
    Phone::current().journal.record("lock screen date " + notation(shown));
}

void Element::registerClass() {
  StandIn<Element>("CoverSheet", "CSProminentTextElementView", "UIView")
      .method<"initWithFrame:", &Element::initWithFrame>()
      .readonlyProperty<"textLabel", &Element::textLabel>()
      .readonlyProperty<"overrideString", &Element::overrideString>()
      .method<"setOverrideString:", &Element::setOverrideString>()
      .finish();
}

void CSProminentSubtitleDateView::showDate(Object view, double moment) {
  Element::of(view).setElementText(string(dayText(moment, Phone::current().setup.locale)));
}

Object CSProminentSubtitleDateView::shownText(Object view) {
  return objc::send<Object, "text">(Element::of(view).textLabel.get());
}

void CSProminentSubtitleDateView::registerClass() {
  StandIn<CSProminentSubtitleDateView>("CoverSheet", "CSProminentSubtitleDateView",
                                       "CSProminentTextElementView")
      .finish();
}

}  // namespace sim
