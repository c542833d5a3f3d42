// The place below the Now Playing header for another controller's view: the audio routes, usually.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUEmbeddingView : objc::Implementation<MRUEmbeddingView> {
  objc::Strong<objc::Object> embeddedViewController;

  // One that was shown goes.
  void setEmbeddedViewController(objc::Object controller);
  // Takes the embedded controller's view, when it is here, out again. The controller stays set.
  void removeViewController();
  // Shows the controller's view as large as this one, laid out.
  void showViewController();
  bool isShowing() const;
  // The embedded controller's preferred height, held to the room.
  CGSize sizeThatFits(CGSize room) const;
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
