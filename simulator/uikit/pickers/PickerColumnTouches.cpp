// UIPickerColumnView: a finger on the wheel, and how it runs out.
#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

constexpr Nanoseconds frameTime = nanosecondsPerSecond / 60;
constexpr double tapWay = 8;  // points that a finger may tremble in a tap

Nanoseconds now() {
  return Phone::current().clock.uptime();
}

}  // namespace

UIPickerColumnView::~UIPickerColumnView() {
  if (ticket_ != 0) Phone::current().queue.cancel(ticket_);
}

double UIPickerColumnView::position() const {
  return wheel_ ? wheel_->position() : double(place_);
}

bool UIPickerColumnView::isHeld() const {
  return wheel_ && wheel_->isHeld();
}

void UIPickerColumnView::takeWheel() {
  if (!wheel_) wheel_.emplace(numberOfRows, isEndless, place_);
}

void UIPickerColumnView::touchBegan(CGPoint point) {
  if (numberOfRows <= 0) return;
  fingerAt_ = point.y;
  fingerWay_ = 0;
  takeWheel();
  tracking_.emplace();
  wheel_->hold();
}

void UIPickerColumnView::touchMoved(CGPoint point) {
  const double way = point.y - fingerAt_;
  fingerAt_ = point.y;
  fingerWay_ += std::abs(way);
  wheel_->drag(-way / rowHeight, now());
  arrange();
}

// A tap turns the wheel to the row under the finger.
void UIPickerColumnView::touchEnded(CGPoint point) {
  if (fingerWay_ > tapWay) {
    wheel_->release(now());
  } else {
    tracking_.reset();
    const double height = UIView::of(self()).geometry().bounds.size.height;
    wheel_->runTo(std::lround(position() + (point.y - height / 2) / rowHeight), now());
  }
  keepRunning();
}

void UIPickerColumnView::touchCancelled() {
  wheel_->runTo(std::lround(position()), now());
  keepRunning();
}

void UIPickerColumnView::turnBy(long rows) {
  if (numberOfRows <= 0) return;
  stopTurning();
  const long from = place_;
  place_ = isEndless ? from + rows : std::clamp(from + rows, 0L, numberOfRows - 1);
  arrange();
  if (place_ != from) rest();
}

void UIPickerColumnView::stopTurning() {
  wheel_.reset();
  tracking_.reset();
}

void UIPickerColumnView::keepRunning() {
  if (ticket_ != 0) return;
  ticket_ = Phone::current().queue.add(now() + frameTime, [this] {
    ticket_ = 0;
    run();
  });
}

void UIPickerColumnView::run() {
  if (!wheel_ || wheel_->isHeld()) return;
  const bool rests = wheel_->advance(now());
  if (rests) {
    place_ = std::lround(wheel_->position());
    stopTurning();
  }
  arrange();
  if (rests) return rest();
  keepRunning();
}

void UIPickerColumnView::rest() {
  const auto kept = objc::retain(objc::Object(self()));
  const long row = rowAt(place_);
  const bool isAnother = std::exchange(selectedRow, row) != row;
  if (isAnother && turned) turned(row);
  if (rested) rested();
}

}  // namespace sim
