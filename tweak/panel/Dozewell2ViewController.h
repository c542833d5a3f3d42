// The timer panel: three pages on top of each other, of which one is seen at most.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"
#include "tweak/panel/ChooseSnoozeTimeView.h"
#include "tweak/panel/CurrentTimerView.h"
#include "tweak/panel/OnTimerEndsSettingsView.h"

struct Dozewell2ViewController : objc::Implementation<Dozewell2ViewController> {
  bool chooseSnoozeTimeViewShowed;
  bool currentTimerViewShowed;
  CGRect containerFrame;               // of the panel when it was last shown
  objc::Strong<UIView> containerView;  // kept, and read by nobody
  // The frames of transitionViews, in their order, from when the choose-time page was shown.
  objc::Strong<NSMutableArray> transitionViewsOriginalFramesArray;
  bool hasBeenShownUsingSlideAnimation;  // a record
  objc::Strong<UIView> chooseSnoozeTimeView;
  objc::Strong<UIView> currentTimerView;
  objc::Strong<UIView> onTimerEndsSettingsView;
  // Views of the host that give way while the panel is shown. Whoever owns the panel may set it.
  objc::Strong<NSArray> transitionViews;

  // Makes the one panel and hands it to the engine; once.
  static void preloadViewController();
  // For a panel that may be nil.
  static void dismissDozewell(UIViewController panel);

  void viewDidLoad();
  void viewWillLayoutSubviews();
  void viewDidLayoutSubviews();
  void initChooseSnoozeTimeView();
  void initCurrentTimerView();
  void initOnTimerEndsSettingsView();

  void showChooseSnoozeTimeView_transitionView_slideAnimated(bool show, UIView transition,
                                                             bool slide);
  void showCurrentTimerView_transitionView_slideAnimated(bool show, UIView transition, bool slide);
  void show_slideAnimated_transitionView(bool show, bool slide, UIView transition);
  void transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(bool fromChooseTime);
  void showOnTimerEndsSettingsView();
  void hideOnTimerEndsSettingsView();
  void dismissCurrentView();
  void dismissDozewell();

  void validateButtonClicked();
  void cancelButtonClicked();
  void backButtonClicked();
  long selectedMode();
  void performHapticFeedback();
  bool canShowWhileLocked();

  static Class registerClass();

 private:
  UIView view() const { return UIViewController(self()).view(); }
  // The pages are reached by messages alone, which nil takes: none exists before the view is
  // loaded, and those that come from layouts never do without the resource bundle.
  void setUpCurrentTimerView();
  void hideBottomButtons(bool hide);
  void addPage(UIView page);
  void wire(UIButton button, SEL action);
  void wireWithHaptics(UIButton button, SEL action);
  void fadeIn();
  void fadeOut();
  void slideIn();
  void slideOut();
};
