#pragma once

#include <string>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIImage : objc::Implementation<UIImage> {
  std::string file;        // the phone's path of the file that was chosen for the screen
  CGSize size;             // points
  double scale = 1;        // pixels per point
  long renderingMode = 0;  // 0 automatic, 1 original, 2 template
  bool flipsForRightToLeftLayoutDirection = false;  // shown mirrored where the interface runs so

  // Autoreleased; a copy that shares nothing.
  objc::Object withRenderingMode(long mode) const;
  objc::Object flippedForRightToLeft() const;  // likewise
  objc::Object description() const;

  static void registerClass();
};

// The image of a PNG file of the phone, autoreleased. Of "icon.png" it takes the variant for the
// screen: "icon@3x.png", then "icon@2x.png", then the file itself. nil when none of them is a PNG.
objc::Object imageWithContentsOfFile(objc::Object path);

}  // namespace sim
