#include "simulator/standin/Registration.h"
#include "simulator/uikit/AlertView.h"
#include "simulator/uikit/GeometryValues.h"
#include "simulator/uikit/NSLayoutConstraint.h"
#include "simulator/uikit/NSURL.h"
#include "simulator/uikit/UIAlertAction.h"
#include "simulator/uikit/UIAlertController.h"
#include "simulator/uikit/UIApplication.h"
#include "simulator/uikit/UIButton.h"
#include "simulator/uikit/UIColor.h"
#include "simulator/uikit/UIControl.h"
#include "simulator/uikit/UIDatePicker.h"
#include "simulator/uikit/UIDevice.h"
#include "simulator/uikit/UIEvent.h"
#include "simulator/uikit/UIFeedbackGenerator.h"
#include "simulator/uikit/UIFont.h"
#include "simulator/uikit/UIImage.h"
#include "simulator/uikit/UIImageView.h"
#include "simulator/uikit/UIImpactFeedbackGenerator.h"
#include "simulator/uikit/UILabel.h"
#include "simulator/uikit/UIMotionEvent.h"
#include "simulator/uikit/UINotificationFeedbackGenerator.h"
#include "simulator/uikit/UIPasteboard.h"
#include "simulator/uikit/UIPickerColumnView.h"
#include "simulator/uikit/UIPickerView.h"
#include "simulator/uikit/UIResponder.h"
#include "simulator/uikit/UIScreen.h"
#include "simulator/uikit/UISelectionFeedbackGenerator.h"
#include "simulator/uikit/UISlider.h"
#include "simulator/uikit/UIStackView.h"
#include "simulator/uikit/UITouch.h"
#include "simulator/uikit/UIView.h"
#include "simulator/uikit/UIViewController.h"
#include "simulator/uikit/UIWindow.h"
#include "simulator/uikit/autolayout/NSLayoutAnchor.h"
#include "simulator/uikit/nib/NibLoading.h"

namespace sim {

// A class comes after its superclass.
void registerUIKit() {
  UIDevice::registerClass();
  UIScreen::registerClass();
  UIImage::registerClass();
  UIFeedbackGenerator::registerClass();
  UIImpactFeedbackGenerator::registerClass();
  UINotificationFeedbackGenerator::registerClass();
  UISelectionFeedbackGenerator::registerClass();
  UIEvent::registerClass();
  UITouch::registerClass();
  UIMotionEvent::registerClass();
  NSURL::registerClass();
  UIPasteboard::registerClass();
  UIResponder::registerClass();
  UIApplication::registerClass();
  CGColor::registerClass();
  UIColor::registerClass();
  UIFont::registerClass();
  UIView::registerClass();
  UIWindow::registerClass();
  UIImageView::registerClass();
  UILabel::registerClass();
  UIControl::registerClass();
  UIButton::registerClass();
  UISlider::registerClass();
  UIStackView::registerClass();
  UIPickerColumnView::registerClass();
  UIPickerView::registerClass();
  UIDatePicker::registerClass();
  NSLayoutConstraint::registerClass();
  NSLayoutAnchor::registerClasses();
  UIViewController::registerClass();
  UIAlertAction::registerClass();
  AlertView::registerClass();
  UIAlertController::registerClass();
  registerNibLoading();
  addGeometryValues();
}

}  // namespace sim
