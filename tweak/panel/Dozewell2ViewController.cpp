#include "tweak/panel/Dozewell2ViewController.h"

#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"
#include "tweak/indicators/TimeLeftPage.h"
#include "tweak/panel/Dozewell2ViewControllerImplementation.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/HapticFeedbackHelper.h"

using Panel = Dozewell2ViewControllerImplementation;

namespace {

constexpr double panelWidth = 321, panelHeight = 250;  // points
constexpr double pageAlpha = 0.85, backgroundAlpha = 0.2;

bool isLandscape() {
  enum { landscapeRight = 3, landscapeLeft = 4 };
  const long orientation = UIApplication::sharedApplication().activeInterfaceOrientation();
  return orientation == landscapeRight || orientation == landscapeLeft;
}

}  // namespace

void Panel::preloadViewController() {
  const auto engine = Dozewell2Manager::sharedInstance();
  if (engine.dozewell2VC()) return;
  const auto panel = make<Dozewell2ViewController>();
  if (!panel) return;
  engine.setDozewell2VC(panel);
  panel->view().setFrame(rect(0, 0, panelWidth, panelHeight));
  // Before the first show, so that the pickers have their places by then.
  of(panel).chooseSnoozeTimeView->layoutSubviews();
}

// The pages come in this order, so that the actions page lies on top.
void Panel::viewDidLoad() {
  super<void, "viewDidLoad">();
  view().setBackgroundColor(UIColor::black().withAlpha(backgroundAlpha));
  initChooseSnoozeTimeView();
  initCurrentTimerView();
  initOnTimerEndsSettingsView();
}

// Settings that were changed elsewhere reach the pickers here. The step comes before the default
// duration: it puts the picker back.
void Panel::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  const auto settings = Dozewell2StorageManager::sharedInstance();
  chooseSnoozeTimeView->setPickerMinutesSteps(settings.timerMinutesSteps());
  chooseSnoozeTimeView->setDefaultTimerPickerValue(settings.timerDefaultValue());
  chooseSnoozeTimeView->setDefaultNbSongsPickerValue(settings.nbSongsDefaultValue());
  chooseSnoozeTimeView->setModeType(int(settings.enabledModes()));
}

// Upright the pages keep their height, whatever the panel's is while the host moves it; on its side
// there is less room.
void Panel::viewDidLayoutSubviews() {
  super<void, "viewDidLayoutSubviews">();
  const auto size = view().frame().size;
  const auto frame = rect(0, 0, size.width, isLandscape() ? size.height : panelHeight);
  chooseSnoozeTimeView->setFrame(frame);
  currentTimerView->setFrame(frame);
  onTimerEndsSettingsView->setFrame(frame);
}

void Panel::addPage(UIView page) {
  const auto size = view().frame().size;
  page.setFrame(rect(0, 0, size.width, size.height));
  page.setAlpha(pageAlpha);
  page.setHidden(true);
  view().addSubview(page);
}

void Panel::wire(UIButton button, SEL action) {
  button.addTarget(objc::Object(self()), action, UIControl::touchUpInside);
}

void Panel::wireWithHaptics(UIButton button, SEL action) {
  wire(button, action);
  wire(button, objc::selector<"performHapticFeedback">());
}

void Panel::initChooseSnoozeTimeView() {
  if (chooseSnoozeTimeView) return;
  const auto size = view().frame().size;
  chooseSnoozeTimeView = ChooseSnoozeTimeView::make(rect(0, 0, size.width, size.height));
  const ChooseSnoozeTimeView page = chooseSnoozeTimeView;
  wireWithHaptics(page.leftButton(), objc::selector<"backButtonClicked">());
  // The button itself answers with a tap.
  wire(page.topLeftCornerButton(), objc::selector<"showOnTimerEndsSettingsView">());
  wireWithHaptics(page.rightButton(), objc::selector<"validateButtonClicked">());
  addPage(chooseSnoozeTimeView);
}

void Panel::initCurrentTimerView() {
  if (currentTimerView) return;
  currentTimerView = CurrentTimerView::make();
  wireWithHaptics(currentTimerView->backButton(), objc::selector<"backButtonClicked">());
  wireWithHaptics(currentTimerView->cancelTimerButton(), objc::selector<"cancelButtonClicked">());
  addPage(currentTimerView);
  Dozewell2TimeLeftIndicatorsManager::sharedInstance().setDozewellVcTimeLeftLabel(
      currentTimerView->timerLabel());
}

void Panel::initOnTimerEndsSettingsView() {
  if (onTimerEndsSettingsView) return;
  onTimerEndsSettingsView = OnTimerEndsSettingsView::make();
  wireWithHaptics(onTimerEndsSettingsView->backButton(),
                  objc::selector<"hideOnTimerEndsSettingsView">());
  addPage(onTimerEndsSettingsView);
}

// What the page shows decides, never the engine.
long Panel::selectedMode() {
  return chooseSnoozeTimeView->nbSongsPickerView().isHidden() ? Dozewell2Manager::durationMode
                                                              : Dozewell2Manager::songCountMode;
}

void Panel::performHapticFeedback() {
  HapticFeedbackHelper::sendImpact();
}

bool Panel::canShowWhileLocked() {
  return true;
}

void TimeLeftPage::labelChanged() {
  const auto panel = Dozewell2ViewController::preloaded();
  if (!isKindOf<Dozewell2ViewController>(panel)) return;
  Panel& its = Panel::of(panel);
  its.currentTimerView->setupViewWithMode(its.selectedMode());
}

Dozewell2ViewController Dozewell2ViewController::preloaded() {
  return objc::as<Dozewell2ViewController>(Dozewell2Manager::sharedInstance().dozewell2VC());
}

Class Dozewell2ViewController::cls() {
  return Panel::cls();
}

objc::Registration Dozewell2ViewController::registerClass() {
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
      .method<"dismissDozewell", &Panel::dismissDozewell>()
      .method<"validateButtonClicked", &Panel::validateButtonClicked>()
      .method<"cancelButtonClicked", &Panel::cancelButtonClicked>()
      .method<"backButtonClicked", &Panel::backButtonClicked>()
      .method<"selectedMode", &Panel::selectedMode>()
      .method<"performHapticFeedback", &Panel::performHapticFeedback>()
      .method<"_canShowWhileLocked", &Panel::canShowWhileLocked>()
      .finish();
}
