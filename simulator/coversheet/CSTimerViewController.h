// CoverSheet: the countdown on the lock screen.
#pragma once

#include "objc/Class.h"
#include "simulator/machine/MainQueue.h"

namespace sim {

struct CSTimerViewController : objc::Implementation<CSTimerViewController> {
  objc::Strong<objc::Object> endDate;  // NSDate; nil: no countdown is shown
  MainQueue::Ticket end = 0;           // the queue's entry for the end of the countdown

  ~CSTimerViewController() { cancelEnd(); }

  // Shows a countdown to that date, by the wall clock; it goes away by itself. nil removes it.
  void setEndDate(objc::Object date);

  static void registerClass();

 private:
  void scheduleEnd();
  void cancelEnd();
  void endIfDue();
  Nanoseconds due() const;  // uptime
};

}  // namespace sim
