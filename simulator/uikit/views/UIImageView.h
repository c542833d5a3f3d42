#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIImageView : objc::Implementation<UIImageView> {
  objc::Strong<objc::Object> image;  // UIImage

  objc::Object initWithFrame(CGRect frame);
  objc::Object initWithImage(objc::Object shown);  // as large as the image
  void setImage(objc::Object shown);
  CGSize intrinsicContentSize() const;  // of the image
  CGSize sizeThatFits(CGSize) const { return intrinsicContentSize(); }

  static void registerClass();
};

}  // namespace sim
