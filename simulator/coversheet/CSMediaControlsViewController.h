// CoverSheet: the player on the lock screen.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CSMediaControlsViewController : objc::Implementation<CSMediaControlsViewController> {
  objc::Strong<objc::Object> nowPlayingViewController;  // MRUNowPlayingViewController

  void viewDidLoad();
  void viewWillLayoutSubviews();

  static void registerClass();
};

}  // namespace sim
