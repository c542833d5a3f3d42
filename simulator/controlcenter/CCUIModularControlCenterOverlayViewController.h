// ControlCenterUI: the whole of Control Center, modules in a grid over what is behind it.
#pragma once

#include <string_view>
#include <vector>

#include "objc/Class.h"
#include "simulator/controlcenter/ModuleGrid.h"
#include "simulator/controlcenter/ModuleTiles.h"

namespace sim {

struct CCUIModularControlCenterOverlayViewController
    : objc::Implementation<CCUIModularControlCenterOverlayViewController> {
  objc::Strong<objc::Object> backgroundView;  // UIControl: a tap outside of the modules
  // CCUIContentModuleContainerViewController of the music's module
  objc::Strong<objc::Object> mediaContainer;
  // UIView of each place of the grid that no container fills.
  std::vector<objc::Strong<objc::Object>> tiles;
  TileControls controls;  // in the tiles
  long volumeObserver = 0;

  objc::Object tileViews() const;  // NSArray
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewDidDisappear(bool animated);
  void viewWillLayoutSubviews();
  void volumeDidSlide(objc::Object slider);
  void brightnessDidSlide(objc::Object slider);
  // Collapses the expanded module, or else leaves Control Center.
  void didTapBackground(objc::Object sender);
  void collapseModules(bool animated);
  // nil when it has no such module.
  objc::Object container(std::string_view identifier) const;

  static void registerClass();

 private:
  void showVolume();
  void addTile(const ModulePlace& place);
  void placeMedia(const ModuleGrid& grid);
  bool isExpanded() const;
};

}  // namespace sim
