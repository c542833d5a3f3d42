// The host's lock screen: makes its date line when it is first shown, and keeps the date right.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "objc/Ownership.h"
#include "simulator/machine/MainQueue.h"

namespace sim {

class LockScreen {
 public:
  // That of the running host. After a restart there is none until the phone is locked.
  static LockScreen& current();

  bool isLocked() const { return locked_; }
  // The countdown is there from the host's launch on, which does this.
  void makeTimerController();
  void lock();
  void unlock();
  // Called whenever the phone is locked, before the lock screen is there.
  void onLock(std::function<void()> handler) { lockHandlers_.push_back(std::move(handler)); }
  // CSCoverSheetViewController; nil while the phone is not locked.
  objc::Object coverSheet() const;

  // What the date line says, also while a countdown takes its place; nothing before the phone was
  // first locked.
  std::optional<std::string> dateText() const;
  // Seconds until the countdown ends; nothing when there is no countdown.
  std::optional<double> countdown() const;

 private:
  void showCoverSheet();
  void followCountdown();
  // Both in seconds since the reference date.
  void drawDate(double moment);
  void redrawAt(double midnight);

  bool locked_ = false;
  std::vector<std::function<void()>> lockHandlers_;
  // Owned, and never given up. nil without the class; the date line also before the first lock.
  objc::Object timerController_;  // CSTimerViewController
  objc::Object dateView_;         // SBFLockScreenDateSubtitleDateView or its successor
  objc::Object window_;           // UIWindow; owned, nil while the phone is not locked
  bool hasDateView_ = false;
  bool followsCountdown_ = false;
  MainQueue::Ticket nextDrawing_ = 0;
};

}  // namespace sim
