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
  long context = 0;

  objc::Object initWithFrame(CGRect frame);
  // Nothing happens when it is set already; so with setShowRoutingButton:.
  void setLayout(long chosen);
  void setShowRoutingButton(bool show);
  // What is not shown is transparent, never hidden.
  void updateVisibility();
  // Every part gets its frame on every pass.
  void layoutSubviews();

  static void registerClass();

 private:
  // By a left-to-right interface; turned round in the other.
  void place(objc::Object part, CGRect frame);
  void placeMinimized(CGSize size);
  void placeInARow(CGSize size);
};

}  // namespace sim
