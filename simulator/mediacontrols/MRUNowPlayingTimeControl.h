// How far the track has come: a line, the time that is over and the time that is left.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUNowPlayingTimeControl : objc::Implementation<MRUNowPlayingTimeControl> {
  objc::Strong<objc::Object> elapsedLabel;    // UILabel, "1:05"
  objc::Strong<objc::Object> remainingLabel;  // UILabel, "-1:55"
  objc::Strong<objc::Object> track;
  objc::Strong<objc::Object> progress;
  double elapsed = 0;   // seconds
  double duration = 0;  // seconds; 0: nothing plays

  objc::Object initWithFrame(CGRect frame);
  void show(double elapsedSeconds, double durationSeconds);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
