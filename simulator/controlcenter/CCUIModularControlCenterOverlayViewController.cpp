#include "simulator/controlcenter/CCUIModularControlCenterOverlayViewController.h"

#include "simulator/controlcenter/CCUIContentModuleContainerViewController.h"
#include "simulator/controlcenter/ControlCenter.h"
#include "simulator/controlcenter/ModuleSymbols.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
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

void addCircle(Object tile, CGPoint origin, Object color, ModuleSymbol symbol) {
  constexpr double size = 54;
  const auto circle = addView(tile, "UIView");
  setFrame(circle, {origin, {size, size}});
  fill(circle, color, size / 2);
  addModuleSymbol(circle, symbol, {size / 2, size / 2}, whiteColor(1));
}

void addRadios(Object tile) {
  constexpr double left = 15, right = 84;
  addCircle(tile, {left, left}, whiteColor(0.15), ModuleSymbol::airplane);
  addCircle(tile, {right, left}, rgbColor(0.2, 0.78, 0.35), ModuleSymbol::mobileData);
  addCircle(tile, {left, right}, rgbColor(0.04, 0.52, 1), ModuleSymbol::wifi);
  addCircle(tile, {right, right}, rgbColor(0.04, 0.52, 1), ModuleSymbol::bluetooth);
}

void addLevel(Object tile, ModuleSymbol symbol, CGSize size) {
  const auto level = addView(tile, "UIView");
  setFrame(level, {{0, size.height / 2}, {size.width, size.height / 2}});
  fill(level, whiteColor(0.9));
  addModuleSymbol(tile, symbol, {size.width / 2, size.height - 30}, rgbColor(0.4, 0.4, 0.43));
}

void addFocus(Object tile, CGSize size) {
  const double middle = size.height / 2;
  const auto circle = addView(tile, "UIView");
  setFrame(circle, {{15, middle - 20}, {40, 40}});
  fill(circle, whiteColor(0.15), 20);
  addModuleSymbol(circle, ModuleSymbol::focus, {20, 20}, whiteColor(1));
  const auto title = addLabel(tile, {.points = 15, .isBold = true});
  setText(title, string("Focus"));
  setFrame(title, {{65, middle - 10}, {size.width - 75, 20}});
}

void decorate(Object tile, const ModulePlace& place, CGSize size) {
  const auto symbol = ModuleSymbol(&place - modulePlaces().data());
  switch (place.kind) {
    case ModuleKind::connectivity:
      return addRadios(tile);
    case ModuleKind::slider:
      return addLevel(tile, symbol, size);
    case ModuleKind::wide:
      return addFocus(tile, size);
    case ModuleKind::button:
      return addModuleSymbol(tile, symbol, {size.width / 2, size.height / 2}, whiteColor(1));
    case ModuleKind::media:
      return;
  }
}

}  // namespace

void Overlay::viewDidLoad() {
  super<void, "viewDidLoad">();
  const Object view = viewOf(Object(self()));
  backgroundView = addView(view, "UIControl");
  addTapTarget(backgroundView, Object(self()), objc::selector<"_didTapBackground:">());
  for (const ModulePlace& place : modulePlaces())
    if (place.kind != ModuleKind::media) addTile(place);
  mediaContainer = makeContainer();
  addChildController(Object(self()), mediaContainer);
}

void Overlay::addTile(const ModulePlace& place) {
  auto tile = addView(viewOf(Object(self())), "UIView");
  const ModuleGrid grid(sizeOf(viewOf(Object(self()))));
  fill(tile, tileColor(), tileRadius);
  objc::send<void, "setClipsToBounds:">(tile.get(), true);
  decorate(tile, place, grid.frame(place).size);
  tiles.push_back(std::move(tile));
}

bool Overlay::isExpanded() const {
  return objc::send<bool, "isExpanded">(mediaContainer.get());
}

void Overlay::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  const CGSize screen = sizeOf(viewOf(Object(self())));
  const ModuleGrid grid(screen);
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
      .partial<"viewDidLoad", &Overlay::viewDidLoad>("only the music's module works")
      .method<"viewWillLayoutSubviews", &Overlay::viewWillLayoutSubviews>()
      .method<"_didTapBackground:", &Overlay::didTapBackground>()
      .finish();
}

}  // namespace sim
