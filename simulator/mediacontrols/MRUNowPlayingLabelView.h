// What plays, in up to three lines of one row each: where sound goes to, the title, the artist.
#pragma once

#include <array>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingLabelView : objc::Implementation<MRUNowPlayingLabelView> {
  objc::Strong<objc::Object> routeLabel;   // UILabel
  objc::Strong<objc::Object> titleLabel;   // UILabel
  objc::Strong<objc::Object> artistLabel;  // UILabel
  bool showsRoute = false;                 // the full player's does

  objc::Object initWithFrame(CGRect frame);
  // NSString; nil shows no line. The superview must be laid out for another height.
  void setRoute(objc::Object route);
  void setTitle(objc::Object title);
  void setArtist(objc::Object artist);
  objc::Object route() const;
  objc::Object title() const;
  objc::Object artist() const;
  void setShowsRoute(bool shows);
  // Never wider than the room.
  CGSize sizeThatFits(CGSize room) const;
  void layoutSubviews();

  static void registerClass();

 private:
  std::array<objc::Object, 3> lines() const;  // from the top; nil for one that is not shown
};

}  // namespace sim
