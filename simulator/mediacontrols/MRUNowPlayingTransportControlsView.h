// The buttons of the player: previous track, play or pause, next track.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingTransportControlsView
    : objc::Implementation<MRUNowPlayingTransportControlsView> {
  objc::Strong<objc::Object> previousButton;   // MRUTransportButton
  objc::Strong<objc::Object> playPauseButton;  // MRUTransportButton
  objc::Strong<objc::Object> nextButton;       // MRUTransportButton
  objc::Strong<objc::Object> routingButton;    // MRUTransportButton; nil before 16
  objc::Weak<objc::Object> delegate;           // hears of taps on the routing button

  objc::Object initWithFrame(CGRect frame);
  void setDelegate(objc::Object heard) { delegate = objc::weak(heard); }
  void didSelectRoutingButton(objc::Object sender);
  void setPlaying(bool isPlaying);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
