// Text that cannot be edited.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/coretext/FontStyle.h"

namespace sim {

struct UILabel : objc::Implementation<UILabel> {
  objc::Strong<objc::Object> text;       // NSString, a copy; nil shows nothing
  objc::Strong<objc::Object> textColor;  // UIColor
  objc::Strong<objc::Object> font;       // UIFont
  long textAlignment = 4;                // 0 left, 1 center, 2 right, 4 natural
  long numberOfLines = 1;                // 0: as many as it takes
  bool adjustsFontSizeToFitWidth = false;
  double minimumScaleFactor = 0;

  objc::Object initWithFrame(CGRect frame);
  void setText(objc::Object shown);
  void setTextColor(objc::Object color);  // nil: black
  void setFont(objc::Object used);        // nil: the system's of 17 points
  FontStyle fontStyle() const;
  void setNumberOfLines(long lines);
  CGSize sizeThatFits(CGSize size) const;
  CGSize intrinsicContentSize() const;

  static void registerClass();
};

}  // namespace sim
