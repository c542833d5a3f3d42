// Views: the tree and the frames.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/uikit/Geometry.h"

namespace sim {

struct UIView : objc::Implementation<UIView> {
  CGRect viewFrame;
  bool hidden = false;
  objc::Object parent;  // not owned: the parent owns this view and clears it
  std::vector<objc::Strong<objc::Object>> children;  // back to front

  ~UIView();

  objc::Object init();
  objc::Object initWithFrame(CGRect frame);
  CGRect frame() { return viewFrame; }
  void setFrame(CGRect frame) { viewFrame = frame; }
  CGRect bounds() { return {{}, viewFrame.size}; }

  objc::Object subviews();
  // Moves the view from the parent it has. nil does nothing.
  void addSubview(objc::Object view);
  void removeFromSuperview();
  void layoutSubviews() {}

  static void registerClass();
};

}  // namespace sim
