// What Control Center's Now Playing module shows: the player, small or in full.
#pragma once

#include "objc/Class.h"

namespace sim {

struct MRUControlCenterViewController : objc::Implementation<MRUControlCenterViewController> {
  objc::Strong<objc::Object> nowPlayingViewController;  // MRUNowPlayingViewController
  long pendingNowPlayingExpandedLayout = 0;  // MRULayout, for the next expansion; 0: none

  void loadView();
  void viewDidLoad();
  void viewWillLayoutSubviews();
  // The module's container tells.
  void willTransitionToExpandedContentMode(bool expanded);
  // The routes need the room of the expanded module.
  void nowPlayingViewControllerDidChangeLayout(objc::Object controller);
  // From 16 on the player asks for its layouts; for the routes the small module is expanded first.
  void applyLayout(objc::Object controller, long layout);
  // That of the small module.
  void didSelectRoutingButton(objc::Object sender);

  static void registerClass();
};

}  // namespace sim
