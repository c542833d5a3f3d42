// CoverSheet: the countdown on the lock screen. It is the Clock's: made when the host launches, it
// asks for the Clock's timer at once and at each change of it, and shows what it is answered.
#pragma once

#include "objc/Class.h"
#include "simulator/machine/MainQueue.h"

namespace sim {

struct CSTimerViewController : objc::Implementation<CSTimerViewController> {
  objc::Strong<objc::Object> endDate;  // NSDate; nil: no countdown is shown
  objc::Weak<objc::Object> delegate;
  bool enabled = false;
  MainQueue::Ticket end = 0;  // the queue's entry for the end of the countdown; 0: none counts
  long clockObserver = 0;     // ClockTimer's number for it
  bool isAnswered = false;    // while the Clock's answer is passed on

  ~CSTimerViewController();

  objc::Object initWithNibName_bundle(objc::Object nibName, objc::Object bundle);
  objc::Object currentDelegate();
  void setDelegate(objc::Object object);
  void setEnabled(bool on);
  // Shows a countdown to that date, by the wall clock, if it is in the future; it goes away by
  // itself. nil removes it, whoever's it was.
  void setEndDate(objc::Object date);
  bool counts() const { return end != 0; }

  static void registerClass();

 private:
  void askClock();
  void takeAnswer();
  void scheduleEnd();
  void cancelEnd();
  void endIfDue();
  Nanoseconds due() const;  // uptime
};

}  // namespace sim
