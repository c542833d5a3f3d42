#include "tweak/panel/CurrentTimerView.h"

#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/support/BundleHelper.h"

using Page = CurrentTimerView;

namespace {

constexpr double barHeight = 50;  // points

NSString localized(const char* key) {
  return BundleHelper::getLocalizedStringFor(NSString::string(key));
}

const char* durationUnit(NSString clock) {
  return clock.componentsSeparatedByString(":"_ns).count() > 2 ? "HOURS" : "MINUTES";
}

const char* songUnit(NSString number) {
  return number.integerValue() == 1 ? "SONG" : "SONGS";
}

}  // namespace

id CurrentTimerView::init() {
  const auto owner = objc::adopt(objc::Object(self()));  // init gives up the object it returns not
  auto page = objc::retain(objc::as<UIView>(
      BundleHelper::getBundle().loadNibNamed("CurrentTimerView"_ns, owner).firstObject()));
  if (!page) return nullptr;
  of(page.get()).backButton.load()->setTitle(localized("BACK"));
  of(page.get()).cancelTimerButton.load()->setTitle(localized("CANCEL"));
  return page.detach().get();
}

CGRect CurrentTimerView::frame() {
  return UIView(self()).superview().frame();
}

void CurrentTimerView::setupViewWithMode(long mode) {
  if (mode != Dozewell2Manager::durationMode && mode != Dozewell2Manager::songCountMode) return;
  const auto left = timerLabel.load()->text();
  titleLabel.load()->setText(localized("YOUR_MUSIC_WILL_STOP_IN"));
  subtitleLabel.load()->setText(
      localized(mode == Dozewell2Manager::durationMode ? durationUnit(left) : songUnit(left)));
}

void CurrentTimerView::hideBottomButtons(bool hide) {
  backButton.load()->setHidden(hide);
  cancelTimerButton.load()->setHidden(hide);
  bottomButtonHeightConstraint.load()->setConstant(hide ? 0 : barHeight);
}

Class CurrentTimerView::registerClass() {
  return objc::ClassBuilder<Page>("CurrentTimerView", "UIView")
      .property<"titleLabel", &Page::titleLabel>()
      .property<"timerLabel", &Page::timerLabel>()
      .property<"subtitleLabel", &Page::subtitleLabel>()
      .property<"backButton", &Page::backButton>()
      .property<"cancelTimerButton", &Page::cancelTimerButton>()
      .property<"bottomButtonHeightConstraint", &Page::bottomButtonHeightConstraint>()
      .method<"init", &Page::init>()
      .method<"frame", &Page::frame>()
      .method<"setupViewWithMode:", &Page::setupViewWithMode>()
      .method<"hideBottomButtons:", &Page::hideBottomButtons>()
      .finish();
}
