// The panel's state and operations, for the panel's own files alone.
#pragma once

#include "objc/Class.h"
#include "tweak/panel/ChooseSnoozeTimeView.h"
#include "tweak/panel/CurrentTimerView.h"
#include "tweak/panel/Dozewell2ViewController.h"
#include "tweak/panel/OnTimerEndsSettingsView.h"

struct Dozewell2ViewControllerImplementation
    : objc::Implementation<Dozewell2ViewControllerImplementation> {
  bool chooseSnoozeTimeViewShowed;
  bool currentTimerViewShowed;
  CGRect containerFrame;               // of the panel when it was last shown
  objc::Strong<UIView> containerView;  // kept, and read by nobody
  // The frames of transitionViews, in their order, from when the choose-time page was shown.
  objc::Strong<NSMutableArray> transitionViewsOriginalFramesArray;
  bool hasBeenShownUsingSlideAnimation;  // a record
  // The pages. None exists before the view is loaded, and those that come from layouts never do
  // without the resource bundle: then their operations are messages to nil.
  objc::Strong<ChooseSnoozeTimeView> chooseSnoozeTimeView;
  objc::Strong<CurrentTimerView> currentTimerView;
  objc::Strong<OnTimerEndsSettingsView> onTimerEndsSettingsView;
  // Views of the host that give way while the panel is shown. Whoever owns the panel may set it.
  objc::Strong<NSArray> transitionViews;

  // Dozewell2ViewController.cpp: the panel and its pages
  static void preloadViewController();
  void viewDidLoad();
  void viewWillLayoutSubviews();
  void viewDidLayoutSubviews();
  void initChooseSnoozeTimeView();
  void initCurrentTimerView();
  void initOnTimerEndsSettingsView();
  long selectedMode();
  void performHapticFeedback();
  bool canShowWhileLocked();

  // Dozewell2ViewControllerTransitions.cpp: coming and going
  void showChooseSnoozeTimeView_transitionView_slideAnimated(bool show, UIView transition,
                                                             bool slide);
  void showCurrentTimerView_transitionView_slideAnimated(bool show, UIView transition, bool slide);
  void show_slideAnimated_transitionView(bool show, bool slide, UIView transition);
  void dismissCurrentView();
  void dismissDozewell();

  // Dozewell2ViewControllerActions.cpp: the buttons, and one page in place of another
  void transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(bool fromChooseTime);
  void showOnTimerEndsSettingsView();
  void hideOnTimerEndsSettingsView();
  void validateButtonClicked();
  void cancelButtonClicked();
  void backButtonClicked();

 private:
  UIView view() const { return UIViewController(self()).view(); }
  void addPage(UIView page);
  void wire(UIButton button, SEL action);
  void wireWithHaptics(UIButton button, SEL action);
  void fadeIn();
  void fadeOut();
  void slideIn();
  void slideOut();
};
