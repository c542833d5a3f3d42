// The whole Now Playing module, in whatever layout it has.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingView : objc::Implementation<MRUNowPlayingView> {
  objc::Strong<objc::Object> headerView;              // MRUNowPlayingHeaderView
  objc::Strong<objc::Object> timeControl;             // MRUNowPlayingTimeControl
  objc::Strong<objc::Object> transportControlsView;   // MRUNowPlayingTransportControlsView
  objc::Strong<objc::Object> volumeSlider;            // UISlider
  objc::Strong<objc::Object> collapsedEmbeddingView;  // MRUEmbeddingView; nil from 16 on
  objc::Strong<objc::Object> containerView;           // MRUNowPlayingContainerView; nil before 16
  long layout = 0;                                    // MRULayout

  objc::Object initWithFrame(CGRect frame);
  void setLayout(long chosen);
  // The container's.
  objc::Object contentView() const;
  void setContentView(objc::Object view);
  void layoutSubviews();

  static void registerClass();

 private:
  void showParts();
  void placeMinimized(CGSize size);
  void placePlayer(CGSize size);
  void placeEmbedding(CGSize size);
  void placeContainer(CGSize size);
};

}  // namespace sim
