// MediaPlayer: a button whose touches may begin beside it.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/uikit/nib/EdgeInsets.h"

namespace sim {

struct MPButton : objc::Implementation<MPButton> {
  UIEdgeInsets hitRectInsets;        // of the bounds; negative ones take touches beyond them
  UIEdgeInsets alignmentRectInsets;  // of the frame, for layout

  bool pointInside(CGPoint point, objc::Object event) const;

  static void registerClass();
};

}  // namespace sim
