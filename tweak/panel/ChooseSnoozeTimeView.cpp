#include "tweak/panel/ChooseSnoozeTimeView.h"

#include "tweak/panel/ChooseSnoozeTimeViewImplementation.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/SpokenText.h"

using Page = ChooseSnoozeTimeViewImplementation;

namespace {

constexpr double barHeight = 50, cornerInset = 15, cornerSize = 20;  // points
constexpr double captionWidth = 120, rowHeight = 32;
constexpr long forceLeftToRight = 3;

CGRect pickerFrame(CGSize container) {
  return rect(0, 0, container.width, container.height - barHeight);
}
CGRect barFrame(CGSize container) {
  return rect(0, container.height - barHeight, container.width, barHeight);
}
CGRect topRightFrame(CGSize container) {
  return rect(container.width - cornerInset - cornerSize, cornerInset, cornerSize, cornerSize);
}
CGRect topLeftFrame() {
  return rect(cornerInset, cornerInset, cornerSize, cornerSize);
}

objc::Strong<UIButton> barButton(const char* titleKey) {
  const auto button = UIButton::buttonWithType(UIButton::Type::system);
  button.setTitle(BundleHelper::getLocalizedStringFor(NSString::string(titleKey)));
  button.titleLabel().setFont(UIFont::system(15));
  button.setTintColor(UIColor::white());
  return objc::retain(button);
}

objc::Strong<ButtonWithIncreasedTouchArea> cornerButton(const char* image, const char* spokenKey,
                                                        CGRect frame) {
  auto button = ButtonWithIncreasedTouchArea::make();
  button->setFrame(frame);
  button->setImage(BundleHelper::getImageWithName(NSString::string(image)));
  button->setTintColor(UIColor::white());
  button->setAccessibilityLabel(SpokenText::localized(spokenKey));
  return button;
}

}  // namespace

id Page::initWithFrame(CGRect frame) {
  const id made = super<id, "initWithFrame:">(frame);
  if (made != nullptr) of(made).setupView();
  return made;
}

// That of the view which holds this one, so that all sizes here are the panel's. With the page's
// own, which is 250 points high upright, the bottom bar of a panel of another height would not
// stand at that panel's lower edge (choose-frame-is-its-superviews).
CGRect Page::frame() {
  return view().superview().frame();
}

void Page::layoutSubviews() {
  super<void, "layoutSubviews">();
  const auto size = container();
  timeSelectorPickerView->setFrame(pickerFrame(size));
  nbSongsPickerView->setFrame(pickerFrame(size));
  const auto picker = nbSongsPickerView->frame().size;
  // At set-up the place depends on the letters of the text as well; this one is seen, for a layout
  // comes after every set-up. With that formula here, too, the caption would stand in another place
  // in each language (choose-caption-at-set-up).
  musicLabel->setFrame(rect(picker.width / 2.2, picker.height * 0.5 - 15, captionWidth, rowHeight));
  bottomButtonsStackView->setFrame(barFrame(size));
  topRightCornerButton->setFrame(topRightFrame(size));
  topLeftCornerButton->setFrame(topLeftFrame());
}

void Page::setupView() {
  addTimeSelectorPickerView();
  addNbSongsSelectorPickerView();
  nbSongsPickerView->setHidden(true);
  addButtons();
  addToggleModesButton();
  addSettingsButton();
}

void Page::addTimeSelectorPickerView() {
  timeSelectorPickerView = UIDatePicker::make(pickerFrame(container()));
  timeSelectorPickerView->setDatePickerMode(UIDatePicker::countDownTimerMode);
  timeSelectorPickerView->setPrivateTextColor(UIColor::white());
  // The boxed NO goes where a plain one is meant, which reads some part of the object's address. A
  // plain NO would change the "today" of a calendar, which a countdown does not show: nothing that
  // a user could see (choose-today-is-not-highlighted).
  timeSelectorPickerView->performSetHighlightsToday(NSNumber::numberWithBool(false));
  view().addSubview(timeSelectorPickerView);
}

void Page::addNbSongsSelectorPickerView() {
  nbSongsPickerView = UIPickerView::make(pickerFrame(container()));
  nbSongsPickerView->setDataSource(view());
  nbSongsPickerView->setDelegate(view());
  nbSongsPickerView->selectRow(0, 0, false);
  view().addSubview(nbSongsPickerView);

  musicLocalizedlabelText = objc::retain(BundleHelper::getLocalizedStringFor("SONG"_ns));
  const auto picker = nbSongsPickerView->frame().size;
  const double letters = double(musicLocalizedlabelText->length());
  musicLabel = UILabel::make(
      rect(picker.width * 0.5 - 2 * letters, picker.height * 0.5 - 15, captionWidth, rowHeight));
  musicLabel->setText(musicLocalizedlabelText);
  musicLabel->setFont(UIFont::system(17, UIFont::weightSemibold));
  musicLabel->setTextColor(UIColor::white());
  musicLabel->setSemanticContentAttribute(forceLeftToRight);
  nbSongsPickerView->addSubview(musicLabel.get());
}

void Page::addButtons() {
  leftButton = barButton("BACK");
  rightButton = barButton("CONFIRM");
  bottomButtonsStackView = UIStackView::make(barFrame(container()));
  bottomButtonsStackView->setAxis(UIStackView::Axis::horizontal);
  bottomButtonsStackView->setDistribution(UIStackView::Distribution::fillEqually);
  bottomButtonsStackView->setAlignment(UIStackView::Alignment::center);
  bottomButtonsStackView->setSpacing(0);
  bottomButtonsStackView->addArrangedSubview(leftButton.get());
  bottomButtonsStackView->addArrangedSubview(rightButton.get());
  view().addSubview(bottomButtonsStackView);
}

void Page::addToggleModesButton() {
  topRightCornerButton = cornerButton("nbSongsIcon", "CHOOSE_SONGS", topRightFrame(container()));
  topRightCornerButton->addTarget(view(), objc::selector<"toggleModes">(),
                                  UIControl::touchUpInside);
  view().addSubview(topRightCornerButton);
}

void Page::addSettingsButton() {
  topLeftCornerButton = cornerButton("settingsIcon", "TIMER_ACTIONS", topLeftFrame());
  view().addSubview(topLeftCornerButton);
}

Class ChooseSnoozeTimeView::cls() {
  return Page::cls();
}

objc::Registration ChooseSnoozeTimeView::registerClass() {
  return objc::ClassBuilder<Page>("ChooseSnoozeTimeView", "UIView")
      .method<"setModeType:", &Page::setModeType>()
      .method<"setPickerMinutesSteps:", &Page::setPickerMinutesSteps>()
      .method<"setDefaultTimerPickerValue:", &Page::setDefaultTimerPickerValue>()
      .method<"setDefaultNbSongsPickerValue:", &Page::setDefaultNbSongsPickerValue>()
      .property<"modeType", &Page::modeType>()
      .property<"pickerMinutesSteps", &Page::pickerMinutesSteps>()
      .property<"defaultTimerPickerValue", &Page::defaultTimerPickerValue>()
      .property<"defaultNbSongsPickerValue", &Page::defaultNbSongsPickerValue>()
      .property<"leftButton", &Page::leftButton>()
      .property<"rightButton", &Page::rightButton>()
      .property<"topLeftCornerButton", &Page::topLeftCornerButton>()
      .property<"topRightCornerButton", &Page::topRightCornerButton>()
      .property<"musicLabel", &Page::musicLabel>()
      .readonlyProperty<"musicLocalizedlabelText", &Page::musicLocalizedlabelText>()
      .property<"bottomButtonsStackView", &Page::bottomButtonsStackView>()
      .property<"timeSelectorPickerView", &Page::timeSelectorPickerView>()
      .property<"nbSongsPickerView", &Page::nbSongsPickerView>()
      .method<"initWithFrame:", &Page::initWithFrame>()
      .method<"frame", &Page::frame>()
      .method<"layoutSubviews", &Page::layoutSubviews>()
      .method<"setupView", &Page::setupView>()
      .method<"addTimeSelectorPickerView", &Page::addTimeSelectorPickerView>()
      .method<"addNbSongsSelectorPickerView", &Page::addNbSongsSelectorPickerView>()
      .method<"addButtons", &Page::addButtons>()
      .method<"addToggleModesButton", &Page::addToggleModesButton>()
      .method<"addSettingsButton", &Page::addSettingsButton>()
      .method<"nbSongsSelected", &Page::nbSongsSelected>()
      .method<"addOrRemovePluralForRow:", &Page::addOrRemovePluralForRow>()
      .method<"toggleModes", &Page::toggleModes>()
      .method<"showTimerMode", &Page::showTimerMode>()
      .method<"showSongMode", &Page::showSongMode>()
      .method<"numberOfComponentsInPickerView:", &Page::numberOfComponentsInPickerView>()
      .method<"pickerView:numberOfRowsInComponent:", &Page::pickerView_numberOfRowsInComponent>()
      .method<"pickerView:rowHeightForComponent:", &Page::pickerView_rowHeightForComponent>()
      .method<"pickerView:titleForRow:forComponent:", &Page::pickerView_titleForRow_forComponent>()
      .method<"pickerView:viewForRow:forComponent:reusingView:",
              &Page::pickerView_viewForRow_forComponent_reusingView>()
      .method<"pickerView:didSelectRow:inComponent:", &Page::pickerView_didSelectRow_inComponent>()
      .finish();
}
