// The timer button's place in the header of the Now Playing module.
#pragma once

#include "objc/Hook.h"
#include "platform/MediaControls.h"

// A header without a timer button only has its routing button shown and moved.
extern "C" __attribute__((visibility("default"))) void
setDozewellButtonPositionAndVisibilityAccordingToCurrentLayout(id header);

namespace NowPlayingHeader {

using Header = MRUNowPlayingHeaderView;

void addButtonProperty();  // MRUNowPlayingHeaderView dozewellButton

void layoutSubviews(objc::Original<void(Header)> original, Header self);
void setLayout(objc::Original<void(Header, long)> original, Header self, long layout);
void setShowRoutingButton(objc::Original<void(Header, bool)> original, Header self, bool show);
void stateChanged(Header self, objc::Object notification);  // dozewell_stateChanged:
void dealloc(objc::Original<void(Header)> original, Header self);

}  // namespace NowPlayingHeader
