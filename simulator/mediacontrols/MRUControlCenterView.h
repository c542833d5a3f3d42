// The view of Control Center's module, with the small module's own routing button from 16 on.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUControlCenterView : objc::Implementation<MRUControlCenterView> {
  objc::Strong<objc::Object> routingButton;  // MRUTransportButton; nil before 16
  bool showRoutingButton = true;

  objc::Object initWithFrame(CGRect frame);
  void setShowRoutingButton(bool show);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
