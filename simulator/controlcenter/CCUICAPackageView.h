// Control Center: an animated glyph, in the middle of the view.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct CCUICAPackageView : objc::Implementation<CCUICAPackageView> {
  objc::Strong<objc::Object> package;             // CAPackage
  objc::Strong<objc::Object> packageDescription;  // CCUICAPackageDescription, when set by it
  objc::Strong<objc::Object> contentView;         // UIView as large as the package's root layer
  objc::Strong<objc::Object> stateController;     // CAStateController of the root layer
  double scale = 1;                               // of the content view

  objc::Object initWithFrame(CGRect frame);
  // Puts the package's layers into the content view in place of those before; nil leaves none, the
  // package that is there already changes nothing.
  void setPackage(objc::Object given);
  void setPackageDescription(objc::Object description);
  void setScale(double factor);
  // A name that is none of the package's takes its layers back to what they are without a state.
  void setStateName(objc::Object name);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
