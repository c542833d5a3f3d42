// The controller of the host's Now Playing module, with the operations that the extension adds.
#pragma once

#include "platform/MediaControls.h"

// Main thread.
struct DozewellNowPlayingController : MRUNowPlayingViewController {
  using MRUNowPlayingViewController::MRUNowPlayingViewController;

  // Opens the timer panel, or closes it. Closing does nothing outside the routing layout.
  void dozewell_expandDozewell(bool expand) const {
    objc::send<void, "dozewell_expandDozewell:">(*this, expand);
  }
  // Embeds the timer panel, or again the host's routing panel.
  void dozewell_updateEmbeddedVCWithDozewellVC(bool useDozewell) const {
    objc::send<void, "dozewell_updateEmbeddedVCWithDozewellVC:">(*this, useDozewell);
  }
};
