// What Control Center's Now Playing module shows: the player, small or in full.
#pragma once

#include <map>
#include <string>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRUControlCenterViewController : objc::Implementation<MRUControlCenterViewController> {
  objc::Strong<objc::Object>
      nowPlayingViewController;  // MRUNowPlayingViewController, on the screen
  // Before 16: those of other devices, by the device's name. They are loaded when it is found, and
  // are on no screen.
  std::map<std::string, objc::Strong<objc::Object>> others;
  long pendingNowPlayingExpandedLayout = 0;  // MRULayout, for the next expansion; 0: none
  long endpointObserver = 0;                 // Endpoints' number for it; 0 while it is not loaded

  ~MRUControlCenterViewController();

  objc::Object viewControllers() const;  // NSDictionary; the phone's own has the key "iPhone"
  void loadView();
  void viewDidLoad();
  void viewWillLayoutSubviews();
  // Told within the expansion or the collapse.
  void viewWillTransition(CGSize size, objc::Object coordinator);
  void didTransitionToExpandedContentMode(bool) {}
  void updateSelectedViewControllerLayout();
  // The player asks for its layouts; for the routes the small module is expanded first.
  void applyLayout(objc::Object controller, long layout);
  // That of the small module, from 16 on.
  void didSelectRoutingButton(objc::Object sender);

  static void registerClass();

 private:
  objc::Strong<objc::Object> makePlayer();
  bool isExpanded() const;
  void updateOthers();
};

}  // namespace sim
