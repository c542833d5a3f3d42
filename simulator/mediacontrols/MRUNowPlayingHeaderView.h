// The header of the Now Playing module: artwork, titles and the routing button.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingHeaderView : objc::Implementation<MRUNowPlayingHeaderView> {
  objc::Strong<objc::Object> artworkView;
  objc::Strong<objc::Object> labelView;      // MRUNowPlayingLabelView
  objc::Strong<objc::Object> routingButton;  // MRUNowPlayingRoutingButton; MRUTransportButton of 16
  long layout = 0;                           // MRULayout
  bool showRoutingButton = true;

  objc::Object initWithFrame(CGRect frame);
  void setLayout(long chosen);
  void setShowRoutingButton(bool show);
  void layoutSubviews();

  static void registerClass();

 private:
  void showRoutingButtonOrNot();
  void placeMinimized(CGSize size);
  void placeInARow(CGSize size);
};

}  // namespace sim
