#pragma once

#include "objc/Class.h"

namespace sim {

struct UIFont : objc::Implementation<UIFont> {
  double pointSize = 17;
  double weight = 0;  // 0 regular, 0.3 semibold, 0.4 bold

  double lineHeight() const;  // points
  objc::Object fontName() const;
  objc::Object withSize(double points) const;
  bool isEqual(objc::Object other) const;
  unsigned long hash() const;

  static objc::Object system(double points);  // autoreleased

  static void registerClass();
};

}  // namespace sim
