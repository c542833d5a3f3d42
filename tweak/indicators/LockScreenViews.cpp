#include "tweak/indicators/LockScreenViews.h"

#include "objc/Global.h"

namespace {

objc::Global<objc::Strong<CSTimerViewController>> newestTimerController;
objc::Global<objc::Strong<NSDate>> endDateShown;  // nil: no countdown of ours
objc::Global<objc::Strong<SBFLockScreenDateSubtitleDateView>> newestDateView;

}  // namespace

DozewellTimerController DozewellTimerController::newest() {
  return objc::as<DozewellTimerController>(newestTimerController->get());
}

void DozewellTimerController::setNewest(CSTimerViewController controller) {
  *newestTimerController = objc::retain(controller);
}

void DozewellTimerController::showEndDate(NSDate end) const {
  *endDateShown = objc::retain(end);
  setEndDate(end);
}

void DozewellTimerController::showEndDateAgain() {
  const NSDate end = endDateShown->get();
  if (end.timeIntervalSinceNow() > 0) newest().setEndDate(end);
}

DozewellDateView DozewellDateView::newest() {
  return objc::as<DozewellDateView>(newestDateView->get());
}

void DozewellDateView::setNewest(SBFLockScreenDateSubtitleDateView view) {
  *newestDateView = objc::retain(view);
}
