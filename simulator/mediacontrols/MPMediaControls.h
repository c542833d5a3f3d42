// MediaPlayer: the system's own sheet with the places where sound can go.
#pragma once

#include "objc/Class.h"

namespace sim {

struct MPMediaControls : objc::Implementation<MPMediaControls> {
  objc::Strong<objc::Object> sourceView;  // of the button that was tapped
  objc::Strong<objc::Object> sheet;       // UIViewController; nil while it is not shown

  // Over everything of the window that the source view is in.
  void present();
  void dismiss();

  static void registerClass();
};

}  // namespace sim
