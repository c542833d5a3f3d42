#include "simulator/coversheet/CSTimerViewController.h"

#include <utility>

#include "simulator/coversheet/ClockTimer.h"
#include "simulator/foundation/Deadline.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

CSTimerViewController::~CSTimerViewController() {
  cancelEnd();
  if (clockObserver != 0) ClockTimer::current().forget(clockObserver);
}

objc::Object CSTimerViewController::initWithNibName_bundle(objc::Object nibName,
                                                           objc::Object bundle) {
  const auto made = super<objc::Object, "initWithNibName:bundle:">(nibName, bundle);
  clockObserver = ClockTimer::current().observe([this] { askClock(); });
  askClock();
  return made;
}

// The Clock is another process: the question goes there in one turn of the main queue, and the
// answer comes in a later one. What the host does in the turn of its launch comes between the two.
void CSTimerViewController::askClock() {
  MainQueue& queue = Phone::current().queue;
  queue.addNow([&queue, asking = objc::weak(objc::Object(self()))] {
    queue.addNow([asking] {
      if (const auto controller = asking.load()) of(controller.get()).takeAnswer();
    });
  });
}

void CSTimerViewController::takeAnswer() {
  const auto answer = ClockTimer::current().endDate();
  isAnswered = true;
  objc::send<void, "setEndDate:">(self(), answer ? date(*answer) : objc::Object());
  isAnswered = false;
}

objc::Object CSTimerViewController::currentDelegate() {
  return objc::autorelease(delegate.load());
}

void CSTimerViewController::setDelegate(objc::Object object) {
  delegate = objc::weak(object);
}

void CSTimerViewController::setEnabled(bool on) {
  enabled = on;
  scheduleEnd();
}

// The journal has what the Clock says only where that changes anything.
void CSTimerViewController::setEndDate(objc::Object date) {
  const bool isSame = endDate.get() == date;
  if (!isSame || !(date || isAnswered))
    Phone::current().journal.record("-[CSTimerViewController setEndDate:" + notation(date) + ']');
  if (isSame) return;
  endDate = objc::retain(date);
  scheduleEnd();
}

Nanoseconds CSTimerViewController::due() const {
  return uptimeAt(Phone::current().clock,
                  objc::send<double, "timeIntervalSinceReferenceDate">(endDate.get()));
}

void CSTimerViewController::scheduleEnd() {
  cancelEnd();
  if (enabled && endDate && due() > Phone::current().clock.uptime())
    end = Phone::current().queue.add(due(), [this] { endIfDue(); });
}

void CSTimerViewController::cancelEnd() {
  if (end != 0) Phone::current().queue.cancel(std::exchange(end, 0));
}

// The wall clock may have been set back meanwhile.
void CSTimerViewController::endIfDue() {
  end = 0;
  scheduleEnd();
  if (counts()) return;
  endDate = nullptr;
  Phone::current().journal.record("lock screen countdown ends");
}

void CSTimerViewController::registerClass() {
  using Timer = CSTimerViewController;
  StandIn<Timer>("CoverSheet", "CSTimerViewController", "UIViewController")
      .method<"initWithNibName:bundle:", &Timer::initWithNibName_bundle>()
      .readonlyProperty<"_endDate", &Timer::endDate>()
      .partial<"delegate", &Timer::currentDelegate>("the cover sheet, but only while locked")
      .partial<"setDelegate:", &Timer::setDelegate>("it is told nothing")
      .partial<"setEnabled:", &Timer::setEnabled>("begins and ends a countdown by itself")
      .partial<"setEndDate:", &Timer::setEndDate>(
          "ends at its date, not with the next second; late when the wall clock is set forward; "
          "shown on every version, where newer ones may not")
      .finish();
}

}  // namespace sim
