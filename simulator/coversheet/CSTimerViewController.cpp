#include "simulator/coversheet/CSTimerViewController.h"

#include <utility>

#include "simulator/StandIn.h"
#include "simulator/foundation/Values.h"
#include "simulator/phone/Phone.h"

namespace sim {
namespace {

// Dates of this century resolve about a tenth of a microsecond.
constexpr double resolution = 1e-6;

}  // namespace

void CSTimerViewController::setEndDate(objc::Object date) {
  Phone::current().journal.record("-[CSTimerViewController setEndDate:" + notation(date) + ']');
  cancelEnd();
  endDate = objc::retain(date);
  if (endDate) scheduleEnd();
}

double CSTimerViewController::remaining() const {
  return objc::send<double, "timeIntervalSinceNow">(endDate.get());
}

void CSTimerViewController::scheduleEnd() {
  const Nanoseconds distance = nanoseconds(remaining());
  Phone& phone = Phone::current();
  end = phone.queue.add(phone.clock.uptime() + distance, [this] { endIfDue(); });
}

void CSTimerViewController::cancelEnd() {
  if (end != 0) Phone::current().queue.cancel(std::exchange(end, 0));
}

// The wall clock may have been set back meanwhile.
void CSTimerViewController::endIfDue() {
  end = 0;
  if (remaining() > resolution) {
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
