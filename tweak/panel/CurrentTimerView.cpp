#include "tweak/panel/CurrentTimerView.h"

#include "objc/Class.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/panel/PageLayout.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/LocalizationHelper.h"
#include "tweak/support/SpokenText.h"

namespace {

struct CurrentTimerViewImplementation : objc::Implementation<CurrentTimerViewImplementation> {
  // All from the layout.
  objc::Weak<UILabel> titleLabel;
  objc::Weak<UILabel> timerLabel;  // written by the indicators
  objc::Weak<UILabel> subtitleLabel;
  objc::Weak<UIButton> backButton;
  objc::Weak<UIButton> cancelTimerButton;
  objc::Weak<NSLayoutConstraint> bottomButtonHeightConstraint;

  id init();  // the view that the layout holds, in place of this one
  CGRect frame();
  void setUpClock();
  void setupViewWithMode(long mode);
  void hideBottomButtons(bool hide);
};

using Page = CurrentTimerViewImplementation;

constexpr double barHeight = 50;  // points

NSString localized(const char* key) {
  return BundleHelper::getLocalizedStringFor(NSString::string(key));
}

// The unit of the largest field shown: a clock of three fields begins with hours.
const char* durationUnit(NSString clock) {
  return clock.componentsSeparatedByString(":"_ns).count() > 2 ? "HOURS" : "MINUTES";
}

// What is no number reads as 0, which takes the plural. Not every system reads Arabic's digits.
const char* songUnit(NSString number) {
  const bool isOne = number.integerValue() == 1 ||
                     number.isEqualToString(LocalizationHelper::getLocalizedNumberStringFrom(1));
  return isOne ? "SONG" : "SONGS";
}

id Page::init() {
  auto page = pageFromLayout("CurrentTimerView"_ns, self());
  if (!page) return nullptr;
  of(page.get()).backButton.load()->setTitle(localized("BACK"));
  of(page.get()).cancelTimerButton.load()->setTitle(localized("CANCEL"));
  of(page.get()).setUpClock();
  return page.detach().get();
}

void Page::setUpClock() {
  const auto clock = timerLabel.load();
  // With digits of different widths the text would jump sideways as it counts. The weight is the
  // layout's; a font does not tell its own.
  clock->setFont(UIFont::monospacedDigitSystem(clock->font().pointSize(), UIFont::weightLight));
  // A screen reader is told what is left in words, which the indicators give as the label's value:
  // with their unit, so that the unit line is passed over.
  clock->setAccessibilityLabel(SpokenText::localized("SLEEP_TIMER"));
  clock->setAccessibilityTraits(UIView::traitStaticText | UIView::traitUpdatesFrequently);
  subtitleLabel.load()->setIsAccessibilityElement(false);
}

// That of the view which holds this one: whoever asks is told the place that the page fills. Told
// its own, the panel's dissolve would give the next page this one's frame instead of the panel's
// (current-frame-is-its-superviews).
CGRect Page::frame() {
  return UIView(self()).superview().frame();
}

void Page::setupViewWithMode(long mode) {
  if (mode != Dozewell2Manager::durationMode && mode != Dozewell2Manager::songCountMode) return;
  const auto left = timerLabel.load()->text();
  titleLabel.load()->setText(localized("YOUR_MUSIC_WILL_STOP_IN"));
  subtitleLabel.load()->setText(
      localized(mode == Dozewell2Manager::durationMode ? durationUnit(left) : songUnit(left)));
}

void Page::hideBottomButtons(bool hide) {
  backButton.load()->setHidden(hide);
  cancelTimerButton.load()->setHidden(hide);
  bottomButtonHeightConstraint.load()->setConstant(hide ? 0 : barHeight);
}

}  // namespace

objc::Strong<CurrentTimerView> CurrentTimerView::make() {
  return Page::make<CurrentTimerView>();
}

objc::Registration CurrentTimerView::registerClass() {
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
