#include "tweak/panel/Dozewell2ViewController.h"

#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/HapticFeedbackHelper.h"

using Panel = Dozewell2ViewController;

namespace {

constexpr double panelWidth = 321, panelHeight = 250;  // points
constexpr double pageAlpha = 0.85, backgroundAlpha = 0.2;

bool isLandscape() {
  enum { landscapeRight = 3, landscapeLeft = 4 };
  const auto orientation = objc::as<NSNumber>(
      UIApplication::sharedApplication().safeValueForKey("_activeInterfaceOrientation"_ns));
  const long value = orientation.integerValue();
  return value == landscapeRight || value == landscapeLeft;
}

}  // namespace

void Dozewell2ViewController::preloadViewController() {
  auto& engine = Dozewell2Manager::sharedInstance();
  if (engine.dozewell2VC) return;
  engine.dozewell2VC = make<UIViewController>();
  if (!engine.dozewell2VC) return;
  engine.dozewell2VC->view().setFrame(rect(0, 0, panelWidth, panelHeight));
  of(engine.dozewell2VC).chooseSnoozeTimeView->layoutSubviews();
}

void Dozewell2ViewController::dismissDozewell(UIViewController panel) {
  objc::send<void, "dismissDozewell">(panel);
}

// The pages come in this order, so that the actions page lies on top.
void Dozewell2ViewController::viewDidLoad() {
  super<void, "viewDidLoad">();
  view().setBackgroundColor(UIColor::black().withAlpha(backgroundAlpha));
  initChooseSnoozeTimeView();
  initCurrentTimerView();
  initOnTimerEndsSettingsView();
}

// Settings that were changed elsewhere reach the pickers here. The step comes before the default
// duration: it puts the picker back.
void Dozewell2ViewController::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  const auto& settings = Dozewell2StorageManager::sharedInstance();
  const UIView page = chooseSnoozeTimeView;
  objc::send<void, "setPickerMinutesSteps:">(page, settings.timerMinutesSteps);
  objc::send<void, "setDefaultTimerPickerValue:">(page, settings.timerDefaultValue);
  objc::send<void, "setDefaultNbSongsPickerValue:">(page, settings.nbSongsDefaultValue);
  objc::send<void, "setModeType:">(page, int(settings.enabledModes));
}

void Dozewell2ViewController::viewDidLayoutSubviews() {
  super<void, "viewDidLayoutSubviews">();
  const auto size = view().frame().size;
  const auto frame = rect(0, 0, size.width, isLandscape() ? size.height : panelHeight);
  chooseSnoozeTimeView->setFrame(frame);
  currentTimerView->setFrame(frame);
  onTimerEndsSettingsView->setFrame(frame);
}

void Dozewell2ViewController::addPage(UIView page) {
  const auto size = view().frame().size;
  page.setFrame(rect(0, 0, size.width, size.height));
  page.setAlpha(pageAlpha);
  page.setHidden(true);
  view().addSubview(page);
}

void Dozewell2ViewController::wire(UIButton button, SEL action) {
  button.addTarget(objc::Object(self()), action, UIControl::touchUpInside);
}

void Dozewell2ViewController::wireWithHaptics(UIButton button, SEL action) {
  wire(button, action);
  wire(button, objc::selector<"performHapticFeedback">());
}

void Dozewell2ViewController::initChooseSnoozeTimeView() {
  if (chooseSnoozeTimeView) return;
  const auto size = view().frame().size;
  chooseSnoozeTimeView = objc::adopt(objc::send<UIView, "initWithFrame:">(
      objc_alloc(ChooseSnoozeTimeView::cls()), rect(0, 0, size.width, size.height)));
  const auto& page = ChooseSnoozeTimeView::of(chooseSnoozeTimeView);
  wireWithHaptics(page.leftButton, objc::selector<"backButtonClicked">());
  // The button itself answers with a tap.
  wire(page.topLeftCornerButton, objc::selector<"showOnTimerEndsSettingsView">());
  wireWithHaptics(page.rightButton, objc::selector<"validateButtonClicked">());
  addPage(chooseSnoozeTimeView);
}

void Dozewell2ViewController::initCurrentTimerView() {
  if (currentTimerView) return;
  currentTimerView = CurrentTimerView::make<UIView>();
  wireWithHaptics(objc::send<UIButton, "backButton">(currentTimerView),
                  objc::selector<"backButtonClicked">());
  wireWithHaptics(objc::send<UIButton, "cancelTimerButton">(currentTimerView),
                  objc::selector<"cancelButtonClicked">());
  addPage(currentTimerView);
  Dozewell2TimeLeftIndicatorsManager::sharedInstance().dozewellVcTimeLeftLabel =
      objc::retain(objc::send<UILabel, "timerLabel">(currentTimerView));
}

void Dozewell2ViewController::initOnTimerEndsSettingsView() {
  if (onTimerEndsSettingsView) return;
  onTimerEndsSettingsView = OnTimerEndsSettingsView::make<UIView>();
  wireWithHaptics(objc::send<UIButton, "backButton">(onTimerEndsSettingsView),
                  objc::selector<"hideOnTimerEndsSettingsView">());
  addPage(onTimerEndsSettingsView);
}

// What the page shows decides, never the engine.
long Dozewell2ViewController::selectedMode() {
  const auto songs = objc::send<UIPickerView, "nbSongsPickerView">(chooseSnoozeTimeView);
  return songs.isHidden() ? Dozewell2Manager::durationMode : Dozewell2Manager::songCountMode;
}

void Dozewell2ViewController::performHapticFeedback() {
  HapticFeedbackHelper::sendImpact();
}

bool Dozewell2ViewController::canShowWhileLocked() {
  return true;
}

Class Dozewell2ViewController::registerClass() {
  return objc::ClassBuilder<Panel>("Dozewell2ViewController", "UIViewController")
      .property<"chooseSnoozeTimeView", &Panel::chooseSnoozeTimeView>()
      .property<"currentTimerView", &Panel::currentTimerView>()
      .property<"onTimerEndsSettingsView", &Panel::onTimerEndsSettingsView>()
      .property<"transitionViews", &Panel::transitionViews>()
      .readonlyProperty<"chooseSnoozeTimeViewShowed", &Panel::chooseSnoozeTimeViewShowed>()
      .readonlyProperty<"currentTimerViewShowed", &Panel::currentTimerViewShowed>()
      .readonlyProperty<"containerFrame", &Panel::containerFrame>()
      .readonlyProperty<"containerView", &Panel::containerView>()
      .readonlyProperty<"transitionViewsOriginalFramesArray",
                        &Panel::transitionViewsOriginalFramesArray>()
      .readonlyProperty<"hasBeenShownUsingSlideAnimation",
                        &Panel::hasBeenShownUsingSlideAnimation>()
      .classMethod<"preloadViewController", &Panel::preloadViewController>()
      .method<"viewDidLoad", &Panel::viewDidLoad>()
      .method<"viewWillLayoutSubviews", &Panel::viewWillLayoutSubviews>()
      .method<"viewDidLayoutSubviews", &Panel::viewDidLayoutSubviews>()
      .method<"initChooseSnoozeTimeView", &Panel::initChooseSnoozeTimeView>()
      .method<"initCurrentTimerView", &Panel::initCurrentTimerView>()
      .method<"initOnTimerEndsSettingsView", &Panel::initOnTimerEndsSettingsView>()
      .method<"showChooseSnoozeTimeView:transitionView:slideAnimated:",
              &Panel::showChooseSnoozeTimeView_transitionView_slideAnimated>()
      .method<"showCurrentTimerView:transitionView:slideAnimated:",
              &Panel::showCurrentTimerView_transitionView_slideAnimated>()
      .method<"show:slideAnimated:transitionView:", &Panel::show_slideAnimated_transitionView>()
      .method<"transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime:",
              &Panel::transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime>()
      .method<"showOnTimerEndsSettingsView", &Panel::showOnTimerEndsSettingsView>()
      .method<"hideOnTimerEndsSettingsView", &Panel::hideOnTimerEndsSettingsView>()
      .method<"dismissCurrentView", &Panel::dismissCurrentView>()
      .method<"dismissDozewell", static_cast<void (Panel::*)()>(&Panel::dismissDozewell)>()
      .method<"validateButtonClicked", &Panel::validateButtonClicked>()
      .method<"cancelButtonClicked", &Panel::cancelButtonClicked>()
      .method<"backButtonClicked", &Panel::backButtonClicked>()
      .method<"selectedMode", &Panel::selectedMode>()
      .method<"performHapticFeedback", &Panel::performHapticFeedback>()
      .method<"_canShowWhileLocked", &Panel::canShowWhileLocked>()
      .finish();
}
