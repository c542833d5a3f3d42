#include "simulator/coversheet/SBUILegibilityLabel.h"

#include <utility>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

objc::Object SBUILegibilityLabel::initWithFrame(CGRect frame) {
  constexpr unsigned long flexibleSize = 2 | 16;
  constexpr long centred = 1;
  const auto made = super<objc::Object, "initWithFrame:">(frame);
  label = addLabel(made, {.points = 17, .alignment = centred});
  setFrame(label, {{0, 0}, sizeOf(made)});
  objc::send<void, "setAutoresizingMask:">(label.get(), flexibleSize);
  return made;
}

void SBUILegibilityLabel::setString(objc::Object shown) {
  const auto before = std::exchange(string, objc::adopt(objc::send<objc::Object, "copy">(shown)));
  setText(label, string);
  const bool isSame =
      string.get() == before.get() || objc::send<bool, "isEqual:">(string.get(), before.get());
  if (!isSame && didChange) didChange();
}

void SBUILegibilityLabel::sizeToFit() {
  constexpr CGSize letter = {9, 21};  // points, of an average letter
  const auto frame = objc::send<CGRect, "frame">(self());
  const auto length = double(objc::send<unsigned long, "length">(string.get()));
  objc::send<void, "setFrame:">(self(),
                                CGRect{frame.origin, {length * letter.width, letter.height}});
}

void SBUILegibilityLabel::registerClass() {
  StandIn<SBUILegibilityLabel>("SpringBoardUIServices", "SBUILegibilityLabel", "UIView")
      .method<"initWithFrame:", &SBUILegibilityLabel::initWithFrame>()
      .readonlyProperty<"string", &SBUILegibilityLabel::string>()
      .method<"setString:", &SBUILegibilityLabel::setString>()
      .partial<"sizeToFit", &SBUILegibilityLabel::sizeToFit>("every letter is as wide as any other")
      .finish();
}

}  // namespace sim
