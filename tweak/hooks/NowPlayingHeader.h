// The timer button's place in the header of the Now Playing module.
#pragma once

#include "objc/Hook.h"
#include "tweak/hooks/DozewellButton.h"

// Main thread.
struct DozewellNowPlayingHeader : MRUNowPlayingHeaderView {
  using MRUNowPlayingHeaderView::MRUNowPlayingHeaderView;

  // Kept by the header; nil until it was first laid out in Control Center, and anywhere else.
  DozewellButton dozewellButton() const {
    return objc::send<DozewellButton, "dozewellButton">(*this);
  }
  void setDozewellButton(DozewellButton button) const {
    objc::send<void, "setDozewellButton:">(*this, button);
  }
};

// A header without a timer button only has its routing button shown and moved.
extern "C" __attribute__((visibility("default"))) void
setDozewellButtonPositionAndVisibilityAccordingToCurrentLayout(id header);

namespace NowPlayingHeader {

using Header = DozewellNowPlayingHeader;

void addButtonProperty();  // MRUNowPlayingHeaderView dozewellButton

void layoutSubviews(objc::Original<void(Header)> original, Header self);
void setLayout(objc::Original<void(Header, long)> original, Header self, long layout);
void setShowRoutingButton(objc::Original<void(Header, bool)> original, Header self, bool show);
void stateChanged(Header self, objc::Object notification);  // dozewell_stateChanged:
void dealloc(objc::Original<void(Header)> original, Header self);

}  // namespace NowPlayingHeader
