#include "simulator/coversheet/CSTimerViewController.h"

#include <utility>

#include "simulator/foundation/Deadline.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
void CSTimerViewController::setEndDate(objc::Object date) {
  Phone::current().journal.record("-[CSTimerViewController setEndDate:" + notation(date) + ']');
  cancelEnd();
  endDate = objc::retain(date);
  if (endDate) scheduleEnd();
}

Nanoseconds CSTimerViewController::due() const {
  return uptimeAt(Phone::current().clock,
                  objc::send<double, "timeIntervalSinceReferenceDate">(endDate.get()));
}

void CSTimerViewController::scheduleEnd() {
  end = Phone::current().queue.add(due(), [this] { endIfDue(); });
}

void CSTimerViewController::cancelEnd() {
  if (end != 0) Phone::current().queue.cancel(std::exchange(end, 0));
}

// The wall clock may have been set back meanwhile.
void CSTimerViewController::endIfDue() {
  end = 0;
  if (due() > Phone::current().clock.uptime()) {
    scheduleEnd();
    return;
  }
  endDate = nullptr;
  Phone::current().journal.record("lock screen countdown ends");
}

void CSTimerViewController::registerClass() {
  StandIn<CSTimerViewController>("CoverSheet", "CSTimerViewController", "UIViewController")
      .readonlyProperty<"endDate", &CSTimerViewController::endDate>()
      .partial<"setEndDate:", &CSTimerViewController::setEndDate>(
          "ends late when the wall clock is set forward")
      .finish();
}

}  // namespace sim
