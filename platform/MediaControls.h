// MediaControls (private): the Now Playing module of Control Center.
#pragma once

#include "platform/UIKit.h"

// The round button at the right end of the module's header.
struct MRUNowPlayingRoutingButton : objc::Object {
  using Object::Object;
};

struct MRUNowPlayingHeaderView : objc::Object {
  using Object::Object;
};

struct MRUNowPlayingViewController : UIViewController {
  using UIViewController::UIViewController;
};
