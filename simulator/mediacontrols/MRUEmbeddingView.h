// The place below the Now Playing header for another controller's view: the audio routes, usually.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUEmbeddingView : objc::Implementation<MRUEmbeddingView> {
  objc::Strong<objc::Object> embeddedViewController;
  objc::Weak<objc::Object> parent;  // UIViewController of what is shown; nil: the view's own
  bool active = false;              // shows it

  objc::Object itsParent() const { return autorelease(parent.load()); }
  void setParent(objc::Object controller) { parent = objc::weak(controller); }
  void embedViewController(objc::Object controller, objc::Object itsParent);
  // One that was shown goes.
  void setEmbeddedViewController(objc::Object controller);
  // Takes the embedded controller's view, when it is here, out again. The controller stays set.
  void removeViewController();
  void hideViewController() { removeViewController(); }
  // Shows the controller's view as large as this one, laid out.
  void showViewController();
  // The embedded controller's preferred height, held to the room.
  CGSize sizeThatFits(CGSize room) const;
  void layoutSubviews();

  static void registerClass();

 private:
  bool holdsItsView() const;  // another embedding view may have taken it
};

}  // namespace sim
