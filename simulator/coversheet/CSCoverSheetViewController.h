// CoverSheet: the whole lock screen.
#pragma once

#include <optional>

#include "objc/Class.h"
#include "simulator/machine/MainQueue.h"

namespace sim {

struct CSCoverSheetViewController : objc::Implementation<CSCoverSheetViewController> {
  objc::Strong<objc::Object> wallpaper;       // SBFWallpaperView
  objc::Strong<objc::Object> padlock;         // UIView
  objc::Strong<objc::Object> timeLabel;       // UILabel
  objc::Strong<objc::Object> countdownLabel;  // UILabel
  objc::Strong<objc::Object> dateView;        // SBFLockScreenDateSubtitleDateView or its successor
  objc::Strong<objc::Object> mediaControlsViewController;  // nil while nothing plays
  MainQueue::Ticket nextMinute = 0;  // the queue's entry for the next step of the clock

  ~CSCoverSheetViewController() { stopClock(); }

  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewDidDisappear(bool animated);
  void viewWillLayoutSubviews();
  // In place of the date; nothing when there is none.
  void showCountdown(std::optional<double> secondsLeft);
  // The line under the clock, which is made elsewhere.
  void setDateView(objc::Object view);
  // The player is there while there is music, also paused.
  void updateMediaControls();

  static void registerClass();

 private:
  void showTime();
  void stopClock();
};

}  // namespace sim
