#pragma once

#include "objc/Class.h"
#include "simulator/coretext/FontStyle.h"

namespace sim {

struct UIFont : objc::Implementation<UIFont> {
  FontStyle style;

  double pointSize() const { return style.pointSize; }
  double lineHeight() const { return style.lineHeight(); }  // points
  double ascender() const { return style.ascender(); }      // points
  double descender() const { return style.descender(); }    // points, negative
  objc::Object fontName() const;
  objc::Object withSize(double points) const;
  bool isEqual(objc::Object other) const;
  unsigned long hash() const;

  static objc::Object system(double points);  // autoreleased

  static void registerClass();
};

}  // namespace sim
