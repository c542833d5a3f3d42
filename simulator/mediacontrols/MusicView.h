// The music application on the screen: what plays, and the buttons for it.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/machine/MainQueue.h"

namespace sim {

struct MusicView : objc::Implementation<MusicView> {
  objc::Strong<objc::Object> artwork;        // MRUArtworkView
  objc::Strong<objc::Object> title, artist;  // UILabel
  objc::Strong<objc::Object> timeControl;    // MRUNowPlayingTimeControl
  objc::Strong<objc::Object> transport;      // MRUNowPlayingTransportControlsView
  objc::Strong<objc::Object> volume;         // UISlider

  ~MusicView();
  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();
  void previousTrack();
  void togglePlayPause();
  void nextTrack();
  void slideVolume(objc::Object slider);
  void update();

  static void registerClass();

 private:
  void showTime();

  long volumeObserver_ = 0;
  MainQueue::Ticket nextSecond_ = 0;
};

// The icon on the home screen opens it.
void addMusicApplication();

}  // namespace sim
