#include "simulator/mediacontrols/MRUNowPlayingView.h"

#include <algorithm>

#include "simulator/mediacontrols/MRULayout.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Points.
constexpr double headerTop = 16, headerHeight = 64, margin = 16, embeddingTop = 96;

}  // namespace

Object MRUNowPlayingView::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  timeControl = addView(made, "MRUNowPlayingTimeControl");
  transportControlsView = addView(made, "MRUNowPlayingTransportControlsView");
  volumeSlider = addView(made, "UISlider");
  if (isModuleOf16()) {
    containerView = addView(made, "MRUNowPlayingContainerView");
  } else {
    collapsedEmbeddingView = addView(made, "MRUEmbeddingView");
    objc::send<void, "setClipsToBounds:">(collapsedEmbeddingView.get(), true);
  }
  headerView = addView(made, "MRUNowPlayingHeaderView");
  return made;
}

void MRUNowPlayingView::setLayout(long chosen) {
  layout = chosen;
  objc::send<void, "setLayout:">(headerView.get(), chosen);
  objc::send<void, "setNeedsLayout">(self());
}

void MRUNowPlayingView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  showParts();
  if (layout == minimizedLayout)
    placeMinimized(size);
  else
    placePlayer(size);
  if (containerView)
    placeContainer(size);
  else
    placeEmbedding(size);
}

void MRUNowPlayingView::showParts() {
  // The routes take the place of the other controls; from 16 on they lie below them.
  const bool showsRoutesOnly = layout == routingLayout && !containerView;
  const bool isPlayer = layout != minimizedLayout && !showsRoutesOnly;
  setAlpha(timeControl, isPlayer ? 1 : 0);
  setAlpha(volumeSlider, isPlayer ? 1 : 0);
  setAlpha(transportControlsView, showsRoutesOnly ? 0 : 1);
  setAlpha(collapsedEmbeddingView, layout == routingLayout ? 1 : 0);
  if (!containerView) return;
  setAlpha(containerView, layout == routingLayout ? 1 : 0);
  // The small module has another, in its corner.
  setAlpha(objc::send<Object, "routingButton">(transportControlsView.get()),
           layout == minimizedLayout ? 0 : 1);
}

void MRUNowPlayingView::placeMinimized(CGSize size) {
  constexpr double inset = 12, top = 10, controlsHeight = 40;
  const double width = std::max(size.width - 2 * inset, 0.0);
  const double controlsTop = size.height - inset - controlsHeight + 4;
  setFrame(headerView, {{inset, top}, {width, controlsTop - top}});
  setFrame(transportControlsView, {{inset, controlsTop}, {width, controlsHeight}});
}

// From the header down, the volume at the bottom.
void MRUNowPlayingView::placePlayer(CGSize size) {
  constexpr double timeHeight = 30, controlsHeight = 56, sliderHeight = 34;
  const double width = std::max(size.width - 2 * margin, 0.0);
  setFrame(headerView, {{margin, headerTop}, {width, headerHeight}});
  setFrame(timeControl, {{margin, embeddingTop}, {width, timeHeight}});
  const double volumeTop = size.height - margin - sliderHeight;
  setFrame(volumeSlider, {{margin, volumeTop}, {width, sliderHeight}});
  const double between = (embeddingTop + timeHeight + volumeTop - controlsHeight) / 2;
  setFrame(transportControlsView, {{margin, between}, {width, controlsHeight}});
}

// As wide as the module before it is asked how tall it wants to be: some answer by their width.
void MRUNowPlayingView::placeEmbedding(CGSize size) {
  const double height = frameOf(collapsedEmbeddingView).size.height;
  setFrame(collapsedEmbeddingView, {{0, embeddingTop}, {size.width, height}});
  const CGSize room = {size.width, std::max(size.height - embeddingTop, 0.0)};
  setFrame(collapsedEmbeddingView, {{0, embeddingTop}, sizeThatFits(collapsedEmbeddingView, room)});
}

// Below the controls, which then lie close together; it has all the height that is left.
void MRUNowPlayingView::placeContainer(CGSize size) {
  constexpr double rowGap = 7;
  if (layout != routingLayout) return setFrame(containerView, {{0, size.height}, {size.width, 0}});
  double y = embeddingTop;
  for (const Object control :
       {timeControl.get(), transportControlsView.get(), volumeSlider.get()}) {
    const CGSize its = frameOf(control).size;
    setFrame(control, {{margin, y}, its});
    y += its.height + rowGap;
  }
  setFrame(containerView, {{0, y}, {size.width, std::max(size.height - y, 0.0)}});
}

Object MRUNowPlayingView::contentView() const {
  return objc::send<Object, "contentView">(containerView.get());
}
void MRUNowPlayingView::setContentView(Object view) {
  objc::send<void, "setContentView:">(containerView.get(), view);
}

void MRUNowPlayingView::registerClass() {
  using View = MRUNowPlayingView;
  StandIn<View>("MediaControls", "MRUNowPlayingView", "UIView")
      .method<"initWithFrame:", &View::initWithFrame>()
      .readonlyProperty<"headerView", &View::headerView>()
      .readonlyProperty<"timeControl", &View::timeControl>()
      .readonlyProperty<"transportControlsView", &View::transportControlsView>()
      .readonlyProperty<"volumeSlider", &View::volumeSlider>()
      .readonlyProperty<"collapsedEmbeddingView", &View::collapsedEmbeddingView>()
      .readonlyProperty<"containerView", &View::containerView>()
      .method<"contentView", &View::contentView>()
      .method<"setContentView:", &View::setContentView>()
      .readonlyProperty<"layout", &View::layout>()
      .method<"setLayout:", &View::setLayout>()
      .partial<"layoutSubviews", &View::layoutSubviews>("measures of the simulator's own")
      .finish();
}

}  // namespace sim
