#pragma once

#include <map>
#include <string>
#include <vector>

#include "objc/Class.h"
#include "simulator/quartzcore/LayerAnimation.h"
#include "simulator/quartzcore/LayerGeometry.h"
#include "simulator/quartzcore/LayerTransition.h"

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
  objc::Object masked;              // not owned: the layer that this one masks, which clears it
  objc::Strong<objc::Object> states;            // NSArray of CAState; nil: none
  objc::Strong<objc::Object> stateTransitions;  // NSArray of CAStateTransition; nil: none
  // What key-value coding has stored for keys without accessors: a layer keeps any.
  std::map<std::string, objc::Strong<objc::Object>> otherValues;
  double opacity = 1;
  double cornerRadius = 0;                 // points
  double borderWidth = 0;                  // points, inside the bounds
  objc::Strong<objc::Object> borderColor;  // CGColor
  std::vector<LayerAnimation> animations;  // the newest last; also such as have ended
  LayerTransition transition;
  const unsigned long identity;  // counts up as layers are made; never used again
  // How blurred what lies behind the layer is seen, in points: that of a Gaussian. Private on the
  // platform, where it is a filter.
  double backdropBlur = 0;
  bool hidden = false;
  bool masksToBounds = false;
  // Within the bounds, y grows upwards from the lower edge: for the layer's own drawing and for
  // everything below it, until a layer below is flipped again.
  bool geometryFlipped = false;

  CALayer();
  ~CALayer();
  CALayer(const CALayer&) = delete;
  CALayer& operator=(const CALayer&) = delete;

  LayerValues values() const;                       // where all animations end
  LayerValues presentation(Nanoseconds now) const;  // as it is seen at that uptime
  // What -removeAllAnimations does: those that have not ended are interrupted.
  void removeAllAnimations();
  // Takes away what that group animates here, which nobody has seen.
  void dropAnimations(const AnimationGroup& its);
  // Whether an animation has not ended that keeps touches from the layer's view.
  bool ignoresTouches(Nanoseconds now) const;

  // Moves the layer from the superlayer that it has; an index past the end means on top.
  void insertSublayer(objc::Object layer, unsigned index);
  void removeFromSuperlayer();
  // A layer masks one layer at most: the one that it was given to last.
  void setMask(objc::Object layer);
  objc::Object stateWithName(objc::Object name) const;  // nil when there is none

  static void registerClass();
};

}  // namespace sim
