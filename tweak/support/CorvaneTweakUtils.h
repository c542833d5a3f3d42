// Alerts over everything that is on the screen, and small helpers around them.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct CorvaneTweakUtils : objc::Implementation<CorvaneTweakUtils> {
  using Answer = objc::Block<void(NSString)>;  // is given the text of the button; may be nil

  static void showAlertWithTitle_message_buttonText(NSString title, NSString message,
                                                    NSString button);
  static void showAlertWithTitle_message_buttonsText_completionHandler(NSString title,
                                                                       NSString message,
                                                                       NSArray buttons,
                                                                       Answer answer);
  static void showAlertControllerOverEverything(UIAlertController alert);
  static UIViewController topMostController();
  static bool isAlreadyShowingAnAlert();

  static bool view_isDescendentOfViewOfClass(UIView view, Class cls);  // not the view itself
  static NSString trimmedString(NSString text);
  static bool stringIsEmpty(NSString text);  // no string at all is not an empty one, deliberately
  static int getRandomNumberBetween_to(int from, int to);  // both included

  static Class registerClass();
};
