#include "simulator/coversheet/SBFLockScreenDateSubtitleView.h"

#include "simulator/coversheet/SBUILegibilityLabel.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

// The line is what its owner sees without touching the phone: the journal notes every change.
void journalChanges(objc::Object label) {
  SBUILegibilityLabel* state = &SBUILegibilityLabel::of(label);
  state->didChange = [state] {
    Phone::current().journal.record("lock screen date " + notation(state->string.get()));
  };
}

}  // namespace

objc::Object SBFLockScreenDateSubtitleView::initWithFrame(CGRect frame) {
  const auto made = super<objc::Object, "initWithFrame:">(frame);
  label = SBUILegibilityLabel::make();
  if (label) journalChanges(label.get());
  objc::send<void, "addSubview:">(made, label.get());
  return made;
}

objc::Object SBFLockScreenDateSubtitleView::string() {
  return objc::send<objc::Object, "string">(label.get());
}

void SBFLockScreenDateSubtitleView::setString(objc::Object text) {
  objc::send<void, "setString:">(label.get(), text);
  sizeToFit();
}

void SBFLockScreenDateSubtitleView::sizeToFit() {
  objc::send<void, "sizeToFit">(label.get());
  const auto frame = objc::send<CGRect, "frame">(self());
  const auto fitting = objc::send<CGRect, "bounds">(label.get());
  objc::send<void, "setFrame:">(self(), CGRect{frame.origin, fitting.size});
}

void SBFLockScreenDateSubtitleView::registerClass() {
  using View = SBFLockScreenDateSubtitleView;
  StandIn<View>("SpringBoardFoundation", "SBFLockScreenDateSubtitleView", "UIView")
      .method<"initWithFrame:", &View::initWithFrame>()
      .readonlyProperty<"_label", &View::label>()
      .method<"string", &View::string>()
      .method<"setString:", &View::setString>()
      .method<"sizeToFit", &View::sizeToFit>()
      .finish();
}

}  // namespace sim
