#include "simulator/controlcenter/CCUIModularControlCenterOverlayViewController.h"

#include <utility>

#include "simulator/controlcenter/CCUIContentModuleContainerViewController.h"
#include "simulator/controlcenter/ControlCenter.h"
#include "simulator/controlcenter/Switches.h"
#include "simulator/foundation/Values.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;
using Overlay = CCUIModularControlCenterOverlayViewController;

constexpr double tileRadius = 19, expandedRadius = 38;  // points

Object tileColor() {
  return rgbColor(0.11, 0.11, 0.12, 0.72);
}

Object viewOf(Object controller) {
  return objc::send<Object, "view">(controller);
}

objc::Strong<Object> makeContainer() {
  const auto module =
      objc::adopt(objc::send<Object, "new">(objc_getClass("MRUMediaControlsModule")));
  return objc::adopt(objc::send<Object, "initWithModuleIdentifier:contentModule:">(
      objc_alloc(CCUIContentModuleContainerViewController::cls()), string(nowPlayingModule),
      module.get()));
}

}  // namespace

void Overlay::viewDidLoad() {
  super<void, "viewDidLoad">();
  const Object view = viewOf(Object(self()));
  backgroundView = addView(view, "UIControl");
  addTapTarget(backgroundView, Object(self()), objc::selector<"_didTapBackground:">());
  for (const ModulePlace& place : modulePlaces())
    if (place.kind != ModuleKind::media) addTile(place);
  refreshTiles(controls);
  mediaContainer = makeContainer();
  addChildController(Object(self()), mediaContainer);
}

void Overlay::addTile(const ModulePlace& place) {
  auto tile = addView(viewOf(Object(self())), "UIView");
  const ModuleGrid grid(sizeOf(viewOf(Object(self()))), interfaceIsRightToLeft());
  fill(tile, tileColor(), tileRadius);
  objc::send<void, "setClipsToBounds:">(tile.get(), true);
  fillTile(tile, place, grid.frame(place).size, controls);
  tiles.push_back(std::move(tile));
}

void Overlay::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  if (volumeObserver == 0)
    volumeObserver = AudioSystem::current().observe([this] { showVolume(); });
  showVolume();
}

void Overlay::viewDidDisappear(bool animated) {
  super<void, "viewDidDisappear:">(animated);
  if (volumeObserver != 0) AudioSystem::current().forget(std::exchange(volumeObserver, 0));
}

void Overlay::showVolume() {
  objc::send<void, "setValue:">(controls.volume, AudioSystem::current().volume());
}

void Overlay::volumeDidSlide(Object slider) {
  AudioSystem::current().slideVolume(objc::send<float, "value">(slider));
}

void Overlay::brightnessDidSlide(Object slider) {
  setBrightness(objc::send<float, "value">(slider));
}

bool Overlay::isExpanded() const {
  return objc::send<bool, "isExpanded">(mediaContainer.get());
}

void Overlay::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  const CGSize screen = sizeOf(viewOf(Object(self())));
  const ModuleGrid grid(screen, interfaceIsRightToLeft());
  setFrame(backgroundView, {{0, 0}, screen});
  fill(backgroundView, blackColor(isExpanded() ? 0.7 : 0.5));
  auto tile = tiles.begin();
  for (const ModulePlace& place : modulePlaces()) {
    if (place.kind == ModuleKind::media) continue;
    setFrame(*tile, grid.frame(place));
    setAlpha(*tile, isExpanded() ? 0 : 1);
    ++tile;
  }
  placeMedia(grid);
}

void Overlay::placeMedia(const ModuleGrid& grid) {
  const Object media = viewOf(mediaContainer);
  setFrame(media, isExpanded() ? grid.expandedFrame() : grid.frame(mediaPlace()));
  fill(media, tileColor(), isExpanded() ? expandedRadius : tileRadius);
}

void Overlay::didTapBackground(Object) {
  if (isExpanded())
    collapseModules(true);
  else
    closeControlCenter();
}

void Overlay::collapseModules(bool animated) {
  if (isExpanded())
    objc::send<void, "dismissExpandedModuleAnimated:">(mediaContainer.get(), animated);
}

Object Overlay::container(std::string_view identifier) const {
  return identifier == nowPlayingModule ? mediaContainer.get() : Object();
}

Object Overlay::tileViews() const {
  return array(std::vector<Object>(tiles.begin(), tiles.end()));
}

void Overlay::registerClass() {
  StandIn<Overlay>("ControlCenterUI", "CCUIModularControlCenterOverlayViewController",
                   "UIViewController")
      .readonlyProperty<"backgroundView", &Overlay::backgroundView>()
      .partial<"tiles", &Overlay::tileViews>("the simulator's own")
      .readonlyProperty<"mediaContainer", &Overlay::mediaContainer>()
      .partial<"viewDidLoad", &Overlay::viewDidLoad>(
          "the modules have no controllers of their own, and only the music's expands; Bluetooth "
          "and Wi-Fi go off, where a phone ends their connections until the next day")
      .method<"viewWillAppear:", &Overlay::viewWillAppear>()
      .method<"viewDidDisappear:", &Overlay::viewDidDisappear>()
      .method<"_volumeDidSlide:", &Overlay::volumeDidSlide>()
      .partial<"_brightnessDidSlide:", &Overlay::brightnessDidSlide>(
          "pages that show the phone darken it; what is drawn stays as bright, as in a screenshot")
      .method<"viewWillLayoutSubviews", &Overlay::viewWillLayoutSubviews>()
      .method<"_didTapBackground:", &Overlay::didTapBackground>()
      .finish();
}

}  // namespace sim
