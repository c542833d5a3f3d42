#include "simulator/uikit/alerts/AlertView.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/alerts/UIAlertAction.h"
#include "simulator/uikit/alerts/UIAlertController.h"
#include "simulator/uikit/animation/Animation.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/resources/UIColor.h"
#include "simulator/uikit/resources/UIFont.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

constexpr double semibold = 0.3;
constexpr long cancelStyle = 1, destructiveStyle = 2;

Object color(double red, double green, double blue, double alpha) {
  return objc::send<Object, "colorWithRed:green:blue:alpha:">(UIColor::cls(), red, green, blue,
                                                              alpha);
}

Object font(double points, double weight) {
  return objc::send<Object, "systemFontOfSize:weight:">(UIFont::cls(), points, weight);
}

Strong<Object> addTo(Object parent, Strong<Object> view) {
  objc::send<void, "addSubview:">(parent, view.get());
  return view;
}

// Words in the middle, over as many lines as they take; nil for no words.
Strong<Object> addWords(Object parent, Object text, double points, double weight) {
  constexpr long center = 1;
  if (!text || UILabel::cls() == nullptr) return {};
  auto label = addTo(parent, UILabel::make());
  objc::send<void, "setFont:">(label.get(), font(points, weight));
  objc::send<void, "setTextAlignment:">(label.get(), center);
  objc::send<void, "setNumberOfLines:">(label.get(), 0L);
  objc::send<void, "setText:">(label.get(), text);
  return label;
}

Object titleColor(long style) {
  return style == destructiveStyle ? color(1, 59.0 / 255, 48.0 / 255, 1) : UIColor::systemBlue();
}

Strong<Object> addButton(Object parent, const UIAlertAction& action) {
  constexpr double points = 17;
  auto button = addTo(parent, UIButton::make());
  objc::send<void, "setTitle:forState:">(button.get(), action.title.get(), UIControl::normal);
  objc::send<void, "setTitleColor:forState:">(button.get(), titleColor(action.style),
                                              UIControl::normal);
  const Object label = objc::send<Object, "titleLabel">(button.get());
  objc::send<void, "setFont:">(label, font(points, action.style == cancelStyle ? semibold : 0));
  objc::send<void, "setEnabled:">(button.get(), action.enabled);
  return button;
}

}  // namespace

Strong<Object> AlertView::showing(const UIAlertController& alert) {
  if (cls() == nullptr) return {};
  constexpr double radius = 14;  // points
  auto made = make();
  AlertView& view = of(made.get());
  view.controller = Object(alert.self());
  objc::send<void, "setBackgroundColor:">(made.get(), color(0, 0, 0, 0.2));
  view.card = addTo(made.get(), UIView::make());
  objc::send<void, "setBackgroundColor:">(view.card.get(), color(0.93, 0.93, 0.94, 1));
  objc::send<void, "setCornerRadius:">(UIView::layerOf(view.card.get()), radius);
  objc::send<void, "setClipsToBounds:">(view.card.get(), true);
  view.addWords(alert);
  view.addButtons(alert);
  return made;
}

void AlertView::addWords(const UIAlertController& alert) {
  title = sim::addWords(card.get(), alert.alertTitle, 17, semibold);
  message = sim::addWords(card.get(), alert.message, 13, 0);
}

void AlertView::addButtons(const UIAlertController& alert) {
  if (UIButton::cls() == nullptr) return;
  for (const auto& each : alert.actions) {
    const UIAlertAction& action = UIAlertAction::of(each.get());
    separators.push_back(addTo(card.get(), UIView::make()));
    objc::send<void, "setBackgroundColor:">(separators.back().get(),
                                            color(0.235, 0.235, 0.263, 0.29));
    buttons.push_back(addButton(card.get(), action));
    isCancel.push_back(action.style == cancelStyle);
    objc::send<void, "addTarget:action:forControlEvents:">(buttons.back().get(), Object(self()),
                                                           objc::selector<"_pressed:">(),
                                                           UIControl::touchUpInside);
  }
}

void AlertView::pressed(Object button) {
  const auto isThis = [button](const auto& each) { return each.get() == button; };
  const auto found = std::find_if(buttons.begin(), buttons.end(), isThis);
  if (found == buttons.end()) return;
  UIAlertController& alert = UIAlertController::of(controller);
  alert.press(alert.actions[std::size_t(found - buttons.begin())].get());
}

void AlertView::animateIn() {
  constexpr double seconds = 0.4, larger = 1.15;
  const auto timing = timingOf(
      {.duration = seconds, .options = animation::allowUserInteraction | animation::curveEaseOut});
  CALayer& whole = CALayer::of(UIView::layerOf(Object(self())));
  CALayer& cardLayer = CALayer::of(UIView::layerOf(card.get()));
  LayerValues start = whole.values();
  start.opacity = 0;
  animateFrom(whole, start, timing);
  start = cardLayer.values();
  start.transform = {larger, 0, 0, larger, 0, 0};
  animateFrom(cardLayer, start, timing);
}

void AlertView::registerClass() {
  StandIn<AlertView>("UIKit", "_UIAlertControllerView", "UIView")
      .method<"layoutSubviews", &AlertView::layoutSubviews>()
      .method<"_pressed:", &AlertView::pressed>()
      .finish();
}

}  // namespace sim
