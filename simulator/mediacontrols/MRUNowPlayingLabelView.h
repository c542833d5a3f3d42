// The title over the artist, as tall as the text needs.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingLabelView : objc::Implementation<MRUNowPlayingLabelView> {
  objc::Strong<objc::Object> titleLabel;   // UILabel
  objc::Strong<objc::Object> artistLabel;  // UILabel

  objc::Object initWithFrame(CGRect frame);
  // NSString; nil shows no line. The superview must be laid out for another height.
  void setTitle(objc::Object title);
  void setArtist(objc::Object artist);
  objc::Object title() const;
  objc::Object artist() const;
  // At most two lines of title and one of artist, never wider than the room.
  CGSize sizeThatFits(CGSize room) const;
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
