// What is behind everything else: the wallpaper and the applications' icons.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct SBHomeScreenView : objc::Implementation<SBHomeScreenView> {
  objc::Strong<objc::Object> wallpaper;            // SBFWallpaperView
  objc::Strong<objc::Object> dock;                 // UIView
  std::vector<objc::Strong<objc::Object>> icons;   // UIView, those of the dock last
  std::vector<objc::Strong<objc::Object>> titles;  // UILabel, of the icons before the dock's
  objc::Strong<objc::Object> note;                 // UILabel: why the others are dim

  objc::Object initWithFrame(CGRect frame);
  // The application of an icon that was tapped.
  void open(objc::Object icon);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
