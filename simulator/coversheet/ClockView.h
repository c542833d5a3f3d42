// The Clock's timer on the screen: what is left of it, and buttons that start and stop it.
#pragma once

#include <utility>
#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct ClockView : objc::Implementation<ClockView> {
  objc::Strong<objc::Object> title;                                // UILabel
  objc::Strong<objc::Object> left;                                 // UILabel: the time that is left
  std::vector<std::pair<objc::Strong<objc::Object>, int>> starts;  // UIButton, minutes
  objc::Strong<objc::Object> cancel;                               // UIButton

  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();
  void start(objc::Object button);
  void stop();
  // Of this moment; asks for no layout.
  void showTimeLeft();

  static void registerClass();
};

// The icon on the home screen opens it.
void addClockApplication();

}  // namespace sim
