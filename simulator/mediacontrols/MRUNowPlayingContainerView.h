// The place for another controller's view in the player of 16 and later: the audio routes.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingContainerView : objc::Implementation<MRUNowPlayingContainerView> {
  objc::Strong<objc::Object> contentView;  // nil until somebody sets it

  objc::Object initWithFrame(CGRect frame);
  // The one of before goes.
  void setContentView(objc::Object view);
  CGSize sizeThatFits(CGSize room) const;
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
