// SpringBoardFoundation: a line of text under the lock screen's clock.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct SBFLockScreenDateSubtitleView : objc::Implementation<SBFLockScreenDateSubtitleView> {
  objc::Strong<objc::Object> label;  // SBUILegibilityLabel; "_label" to those who read it by key

  objc::Object initWithFrame(CGRect frame);
  objc::Object string();  // NSString; nil before there is one
  void setString(objc::Object text);
  void sizeToFit();

  static void registerClass();
};

}  // namespace sim
