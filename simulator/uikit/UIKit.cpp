#include "simulator/standin/Registration.h"
#include "simulator/uikit/alerts/AlertView.h"
#include "simulator/uikit/alerts/UIAlertAction.h"
#include "simulator/uikit/alerts/UIAlertController.h"
#include "simulator/uikit/application/NSURL.h"
#include "simulator/uikit/application/UIApplication.h"
#include "simulator/uikit/application/UIDevice.h"
#include "simulator/uikit/application/UIFeedbackGenerator.h"
#include "simulator/uikit/application/UIImpactFeedbackGenerator.h"
#include "simulator/uikit/application/UINotificationFeedbackGenerator.h"
#include "simulator/uikit/application/UIPasteboard.h"
#include "simulator/uikit/application/UIResponder.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/application/UISelectionFeedbackGenerator.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/autolayout/NSLayoutAnchor.h"
#include "simulator/uikit/autolayout/NSLayoutConstraint.h"
#include "simulator/uikit/controllers/UIViewController.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/nib/NibLoading.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/pickers/UIPickerView.h"
#include "simulator/uikit/resources/GeometryValues.h"
#include "simulator/uikit/resources/UIColor.h"
#include "simulator/uikit/resources/UIFont.h"
#include "simulator/uikit/resources/UIImage.h"
#include "simulator/uikit/touches/UIEvent.h"
#include "simulator/uikit/touches/UIMotionEvent.h"
#include "simulator/uikit/touches/UITouch.h"
#include "simulator/uikit/views/UIImageView.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIStackView.h"
#include "simulator/uikit/views/UIView.h"

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
