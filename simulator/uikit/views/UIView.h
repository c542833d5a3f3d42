// Views: the tree, where they stand in it and what they look like. Layout, hit testing and
// animations have files of their own.
#pragma once

#include <memory>
#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/quartzcore/LayerGeometry.h"
#include "simulator/uikit/views/ViewAccessibility.h"

namespace sim {

struct ViewConstraints;

struct UIView : objc::Implementation<UIView> {
  objc::Strong<objc::Object> layer;  // CALayer, which holds the geometry
  objc::Object parent;               // not owned: the parent owns this view and clears it
  objc::Object controller;           // not owned: the controller whose view this is; clears it
  std::vector<objc::Strong<objc::Object>> children;  // back to front
  objc::Strong<objc::Object> backgroundColor;        // UIColor; nil: clear
  objc::Strong<objc::Object> tintColor;              // UIColor; nil: the superview's
  ViewAccessibility accessibility;
  long tag = 0;
  long semanticContentAttribute = 0;  // 0 unspecified … 3 left to right
  long contentMode = 0;
  unsigned long autoresizingMask = 0;
  bool autoresizesSubviews = true;
  bool userInteractionEnabled = true;
  bool needsLayout = false;
  std::unique_ptr<ViewConstraints> constraints;  // nullptr: nothing was ever said

  UIView();
  ~UIView();

  objc::Object initWithFrame(CGRect frame);
  // Made when it is first asked for: subclasses may set up before the inherited initialiser.
  static objc::Object layerOf(objc::Object view);
  bool isHidden() const;
  double alpha() const;
  // What -frame, -bounds and the rest read and write. Subclasses may override those messages, so
  // UIKit itself looks here.
  LayerGeometry& geometry();
  const LayerGeometry& geometry() const { return const_cast<UIView*>(this)->geometry(); }

  static void registerClass();

 private:
  LayerGeometry withoutLayer_;  // on a phone that has no CALayer
};

}  // namespace sim
