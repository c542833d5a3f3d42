// The round button of the Now Playing header that opens the audio routes.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingRoutingButton : objc::Implementation<MRUNowPlayingRoutingButton> {
  objc::Strong<objc::Object> packageView;
  objc::Strong<objc::Object> triangle;  // CAShapeLayer; nil where no glyph is loaded
  objc::Strong<objc::Object> waves;     // CAShapeLayer
  bool active = false;
  long deviceType = 0;
  long context = 0;

  objc::Object initWithFrame(CGRect frame);
  // Whether sound goes elsewhere than to the phone's own speaker.
  bool isActive() const { return active; }
  void setActive(bool isActive);
  void setHighlighted(bool highlighted);
  void setSelected(bool selected);
  // Loads the routing glyph into the package view.
  void updatePackage();
  // The glyph's look: a state of whatever package the view has, by whether it is active and used.
  void updatePackageState();
  CGSize sizeThatFits(CGSize room) const;
  void layoutSubviews();

  static void registerClass();

 private:
  const char* stateName() const;
};

}  // namespace sim
