// An icon that is checked or not: dimmed when it is not, with a bounce at every change.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct CheckboxButton : objc::Implementation<CheckboxButton> {
  // What setIsChecked: stores, and nothing reads: the selected state is what counts.
  bool declaredChecked;

  id init();
  id initWithCoder(objc::Object coder);
  void checkboxSelected(objc::Object sender);  // its own action when it is touched
  void toggleCheck();
  void check(bool checked);
  bool isChecked();
  void setSelected(bool selected);

  static Class registerClass();

 private:
  id listening(id button);
};
