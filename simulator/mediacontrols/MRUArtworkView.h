// A track's artwork, or a note in its place. Whoever draws the screen may know the picture.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUArtworkView : objc::Implementation<MRUArtworkView> {
  objc::Strong<objc::Object> note;  // CAShapeLayer

  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
