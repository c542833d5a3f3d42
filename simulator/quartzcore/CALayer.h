#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/quartzcore/LayerGeometry.h"

namespace sim {

struct CALayer : objc::Implementation<CALayer> {
  LayerGeometry geometry;
  objc::Object superlayer;                           // not owned: it owns this layer and clears it
  objc::Object delegate;                             // not owned: the view, which clears it
  std::vector<objc::Strong<objc::Object>> children;  // back to front
  objc::Strong<objc::Object> backgroundColor;        // CGColor
  objc::Strong<objc::Object> contents;
  objc::Strong<objc::Object> name;  // NSString
  double opacity = 1;
  double cornerRadius = 0;  // points
  bool hidden = false;
  bool masksToBounds = false;

  ~CALayer();

  // Moves the layer from the superlayer that it has; an index past the end means on top.
  void insertSublayer(objc::Object layer, unsigned index);
  void removeFromSuperlayer();

  static void registerClass();
};

}  // namespace sim
