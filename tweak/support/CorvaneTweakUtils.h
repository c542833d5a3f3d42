// Alerts over everything that is on the screen.
#pragma once

#include "objc/Registration.h"
#include "platform/UIKit.h"

// Main thread.
struct CorvaneTweakUtils : NSObject {
  using NSObject::NSObject;
  using Answer = objc::Block<void(NSString)>;  // is given the text of the button; may be nil

  // One button for each text of the list, in its order; each closes the alert. The answer is
  // copied: the caller may let go of it.
  static void showAlertWithTitle_message_buttonsText_completionHandler(NSString title,
                                                                       NSString message,
                                                                       NSArray buttons,
                                                                       Answer answer) {
    objc::send<void, "showAlertWithTitle:message:buttonsText:completionHandler:">(
        cls(), title, message, buttons, answer);
  }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
