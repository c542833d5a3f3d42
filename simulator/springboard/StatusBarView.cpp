#include "simulator/springboard/StatusBarView.h"

#include "simulator/donotdisturb/Focus.h"
#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/radios/Radios.h"
#include "simulator/springboard/Shapes.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Points.
constexpr CGSize symbolsSize = {70, 14}, timeSize = {96, 21};
constexpr double symbolsRight = 27, timeLeft = 8, lineTop = 14;

constexpr const char* barsText = "R 0 8 3 4 1 R 5 6 3 6 1 R 10 3 3 9 1 R 15 0 3 12 1";
constexpr const char* wavesText =
    "M 23.6 4.2 C 27.8 0.3 34.2 0.3 38.4 4.2 L 36.9 5.8 C 33.5 2.7 28.5 2.7 25.1 5.8 Z "
    "M 26.2 7 C 28.9 4.5 33.1 4.5 35.8 7 L 34.3 8.6 C 32.5 6.9 29.5 6.9 27.7 8.6 Z "
    "M 28.7 9.7 C 30 8.5 32 8.5 33.3 9.7 L 31 12 Z";
constexpr const char* planeText =
    "M 9.5 -1 C 10.3 -1 10.6 0 10.6 1 L 10.6 4 L 17 8 L 17 9.6 L 10.6 7.6 L 10.6 11 L 12.4 12.6 "
    "L 12.4 13.8 L 9.5 13 L 6.6 13.8 L 6.6 12.6 L 8.4 11 L 8.4 7.6 L 2 9.6 L 2 8 L 8.4 4 L 8.4 1 "
    "C 8.4 0 8.7 -1 9.5 -1 Z";
constexpr const char* crescentText =
    "M 5 1 C 0 3 0 10 5 12 C 8 13 11 12 12.4 9.4 C 7 10 3.6 6 5 1 Z";
constexpr const char* batteryCase = "R 44.5 0.5 22 11 3.2";
constexpr const char* batteryEnd = "M 68 4.2 C 69.4 4.7 69.4 7.3 68 7.8 Z";
constexpr const char* charge = "R 46.3 2.3 18.4 7.4 1.8";

void move(Object layer, CGPoint by) {
  objc::send<void, "setAffineTransform:">(layer, CGAffineTransform{1, 0, 0, 1, by.x, by.y});
}

}  // namespace

Object StatusBarView::initWithFrame(CGRect frame) {
  constexpr long center = 1;
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  time = addLabel(made, {.points = 17, .isBold = true, .alignment = center});
  symbols = addView(made, "UIView");
  const Object layer = objc::send<Object, "layer">(symbols.get());
  const Object ink = coreColor({255, 255, 255});
  const Object faint = coreColor({255, 255, 255}, 0.4);
  bars = addShapeLayer(layer, barsText, {ink, nullptr});
  waves = addShapeLayer(layer, wavesText, {ink, nullptr});
  battery.push_back(addShapeLayer(layer, charge, {ink, nullptr}));
  battery.push_back(addShapeLayer(layer, batteryCase, {nullptr, faint}));
  battery.push_back(addShapeLayer(layer, batteryEnd, {faint, nullptr}));
  plane = addShapeLayer(layer, planeText, {ink, nullptr});
  moon = addShapeLayer(objc::send<Object, "layer">(made), crescentText, {ink, nullptr});
  showState();
  return made;
}

void StatusBarView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const double width = sizeOf(Object(self())).width;
  // A phone that lies on its side has none.
  setAlpha(Object(self()), width > UIScreen::mainSize.width ? 0 : 1);
  constexpr double moonLeft = 88, moonWidth = 13;
  const bool isRightToLeft = viewIsRightToLeft(Object(self()));
  const auto x = [&](double left, double its) { return isRightToLeft ? width - left - its : left; };
  setFrame(time, {{x(timeLeft, timeSize.width), lineTop}, timeSize});
  setFrame(symbols, {{x(width - symbolsRight - symbolsSize.width, symbolsSize.width), lineTop + 4},
                     symbolsSize});
  move(moon, {x(moonLeft, moonWidth), lineTop + 4});
  if (isRightToLeft) turnSymbolsRound();
}

// None of them is mirrored itself: only their order is the other one.
void StatusBarView::turnSymbolsRound() {
  constexpr double barsWay = 52, wavesWay = 4.5, batteryWay = -44;
  for (const auto& each : {bars, plane}) move(each, {barsWay, 0});
  move(waves, {wavesWay, 0});
  for (const auto& each : battery) move(each, {batteryWay, 0});
}

void StatusBarView::showState() {
  const Radios& radios = Radios::current();
  const auto show = [](const objc::Strong<Object>& layer, bool isSeen) {
    if (objc::send<bool, "isHidden">(layer.get()) == isSeen)
      objc::send<void, "setHidden:">(layer.get(), !isSeen);
  };
  show(bars, !radios.isAirplaneModeOn());
  show(plane, radios.isAirplaneModeOn());
  show(waves, radios.isWifiOn());
  show(moon, Focus::current().isOn());
}

void StatusBarView::showTime() {
  const Phone& phone = Phone::current();
  setText(time, string(clockText(phone.clock.wall(), phone.setup.locale)));
}

void StatusBarView::registerClass() {
  StandIn<StatusBarView>("UIKit", "_UIStatusBar", "UIView")
      .method<"initWithFrame:", &StatusBarView::initWithFrame>()
      .partial<"layoutSubviews", &StatusBarView::layoutSubviews>(
          "networks and battery are always full, and nobody sees what mobile data does")
      .finish();
}

}  // namespace sim
