#include "simulator/Frameworks.h"
#include "simulator/uikit/UIApplication.h"
#include "simulator/uikit/UIButton.h"
#include "simulator/uikit/UIControl.h"
#include "simulator/uikit/UIDevice.h"
#include "simulator/uikit/UIEvent.h"
#include "simulator/uikit/UIFeedbackGenerator.h"
#include "simulator/uikit/UIImage.h"
#include "simulator/uikit/UIImpactFeedbackGenerator.h"
#include "simulator/uikit/UILabel.h"
#include "simulator/uikit/UIMotionEvent.h"
#include "simulator/uikit/UINotificationFeedbackGenerator.h"
#include "simulator/uikit/UIResponder.h"
#include "simulator/uikit/UIScreen.h"
#include "simulator/uikit/UISelectionFeedbackGenerator.h"
#include "simulator/uikit/UIView.h"
#include "simulator/uikit/UIViewController.h"

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
  UIMotionEvent::registerClass();
  UIResponder::registerClass();
  UIApplication::registerClass();
  UIView::registerClass();
  UILabel::registerClass();
  UIControl::registerClass();
  UIButton::registerClass();
  UIViewController::registerClass();
}

}  // namespace sim
