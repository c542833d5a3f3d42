// SpringBoardUIServices: a line of text that stays readable on any wallpaper.
#pragma once

#include <functional>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct SBUILegibilityLabel : objc::Implementation<SBUILegibilityLabel> {
  objc::Strong<objc::Object> label;   // UILabel, which draws it
  objc::Strong<objc::Object> string;  // NSString, a copy; nil shows nothing
  std::function<void()> didChange;    // called when another text is shown; may be empty

  objc::Object initWithFrame(CGRect frame);
  void setString(objc::Object shown);
  void sizeToFit();

  static void registerClass();
};

}  // namespace sim
