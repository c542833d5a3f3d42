#include "simulator/mediacontrols/MRUArtworkView.h"

#include "simulator/mediacontrols/Glyphs.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;

Object MRUArtworkView::initWithFrame(CGRect frame) {
  constexpr double radius = 6;  // points
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  fill(made, whiteColor(0.12), radius);
  note = addShape(made, notePath());
  tint(note, whiteColor(0.4));
  return made;
}

void MRUArtworkView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  objc::send<void, "setFrame:">(
      note.get(), CGRect{{(size.width - glyphSize) / 2, (size.height - glyphSize) / 2},
                         {glyphSize, glyphSize}});
}

void MRUArtworkView::registerClass() {
  StandIn<MRUArtworkView>("MediaControls", "MRUArtworkView", "UIView")
      .partial<"initWithFrame:", &MRUArtworkView::initWithFrame>(
          "a note; only the page knows the picture of a track, and draws it here")
      .method<"layoutSubviews", &MRUArtworkView::layoutSubviews>()
      .finish();
}

}  // namespace sim
