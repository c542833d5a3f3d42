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
  objc::Strong<objc::Object> mask;  // CALayer in this layer's coordinates; its alpha cuts this one
  double opacity = 1;
  double cornerRadius = 0;  // points
  bool hidden = false;
  bool masksToBounds = false;
  // Within the bounds, y grows upwards from the lower edge: for the layer's own drawing and for
  // everything below it, until a layer below is flipped again.
  bool geometryFlipped = false;

  ~CALayer();

  // Moves the layer from the superlayer that it has; an index past the end means on top.
  void insertSublayer(objc::Object layer, unsigned index);
  void removeFromSuperlayer();

  static void registerClass();
};

}  // namespace sim
