// One button of the player.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/mediacontrols/Glyphs.h"

namespace sim {

struct MRUTransportButton : objc::Implementation<MRUTransportButton> {
  objc::Strong<objc::Object> shape;  // CAShapeLayer
  objc::Strong<objc::Object> waves;  // CAShapeLayer; nil unless it shows the routes

  objc::Object initWithFrame(CGRect frame);
  void show(TransportSymbol symbol, const char* name);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
