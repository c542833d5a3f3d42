// A question on the screen with a button for each answer.
#pragma once

#include <string_view>
#include <vector>

#include "objc/Class.h"

namespace sim {

struct UIAlertController : objc::Implementation<UIAlertController> {
  objc::Strong<objc::Object> alertTitle;  // NSString
  objc::Strong<objc::Object> message;     // NSString
  std::vector<objc::Strong<objc::Object>> actions;
  long preferredStyle = 0;  // 0 action sheet, 1 alert

  static objc::Object make(id cls, objc::Object title, objc::Object message, long style);
  void addAction(objc::Object action);
  objc::Object allActions() const;
  void loadView();
  void animateIn();

  // The first of that title; nil for none.
  objc::Object actionTitled(std::string_view title) const;
  // The alert goes, and when it is gone the action's handler runs: an entry of the main queue.
  void press(objc::Object action);

  // The uppermost on the screen; nil for none.
  static objc::Object shown();

  static void registerClass();
};

}  // namespace sim
