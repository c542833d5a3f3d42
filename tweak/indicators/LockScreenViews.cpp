#include "tweak/indicators/LockScreenViews.h"

#include "objc/Global.h"

namespace {

objc::Global<objc::Strong<CSTimerViewController>> newestTimerController;
objc::Global<objc::Strong<SBFLockScreenDateSubtitleDateView>> newestDateView;

}  // namespace

DozewellTimerController DozewellTimerController::newest() {
  return objc::as<DozewellTimerController>(newestTimerController->get());
}

void DozewellTimerController::setNewest(CSTimerViewController controller) {
  *newestTimerController = objc::retain(controller);
}

DozewellDateView DozewellDateView::newest() {
  return objc::as<DozewellDateView>(newestDateView->get());
}

void DozewellDateView::setNewest(SBFLockScreenDateSubtitleDateView view) {
  *newestDateView = objc::retain(view);
}
