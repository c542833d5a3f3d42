// What Control Center's Now Playing module shows: the player, small or in full.
#pragma once

#include "objc/Class.h"

namespace sim {

struct MRUControlCenterViewController : objc::Implementation<MRUControlCenterViewController> {
  objc::Strong<objc::Object> nowPlayingViewController;  // MRUNowPlayingViewController

  void viewDidLoad();
  void viewWillLayoutSubviews();
  // The module's container tells.
  void willTransitionToExpandedContentMode(bool expanded);
  // The routes need the room of the expanded module.
  void nowPlayingViewControllerDidChangeLayout(objc::Object controller);

  static void registerClass();
};

}  // namespace sim
